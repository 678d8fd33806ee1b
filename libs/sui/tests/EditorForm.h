// The permissions editor on the headless binding, with a configuration of its
// own that holds "Permissions". Tests drive it as a user would, through
// perform() on the named elements of the form and of the dialogs that schemes
// open.
#pragma once

#include "io/SocketManager.h"
#include "mui/MuDialog.h"
#include "mui/MuLayout.h"
#include "mui/MuList.h"
#include "mui/MuiParameters.h"
#include "mui/headless/MuiHeadless.h"
#include "plat/ConfigParameter.h"
#include "plat/Configuration.h"
#include "plat/MarkupStripper.h"
#include "plat/TimerManager.h"
#include "sui/tests/FormEditor.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

namespace sui::test {

class EditorForm : public testing::Test {
protected:
  void SetUp() override {
    // The loop's timers, which delete closed dialogs, as the program has them.
    io::processSocketManager();
    mui::ppmmParameter.setInt(4, 10);
    root = std::make_unique<mui::MuiHeadless>();
    mui::installHeadlessBinding(*root);
    configuration.addString("Permissions", "Access list", "");
    editor = std::make_unique<FormEditor>(configuration);
  }
  void TearDown() override {
    editor.reset();
    settle();
    root.reset();
    mui::ppmmParameter.unset(10, false);
  }

  /// Takes the text at `priority` and lets `scheme` read it, as the
  /// application does at its start.
  void start(PermissionsScheme* scheme, const char* text, int priority = 10) {
    configuration.setParam("Permissions", text, priority);
    editor->addScheme("scheme", scheme);
    editor->setScheme(scheme);
  }
  /// The element at `path` in the form, or in `dialog`.
  mui::MuElement* at(const char* path, mui::MuDialog* dialog = nullptr) {
    mui::MuElement* element = (dialog ? dialog : editor->getDialog())->find(path);
    EXPECT_NE(element, nullptr) << path;
    return element;
  }
  /// Operates the element at `path` as a user would; false when it refused.
  bool act(const char* path, const char* action, const char* argument = nullptr,
           mui::MuDialog* dialog = nullptr) {
    mui::MuElement* element = at(path, dialog);
    return element && element->perform(action, argument);
  }
  /// Selects the list's row as a user would.
  void pick(int row) { ASSERT_TRUE(act("split.list", "select", std::to_string(row).c_str())); }
  /// Chooses a preset by its id.
  void preset(int id) {
    ASSERT_TRUE(act("settings.l.permset.choice", "select", std::to_string(id).c_str()));
  }
  /// Turns the box of `code` in `column` ("allow" or "deny") on or off.
  void tick(char code, const char* column, bool on) {
    std::string path = std::string("settings.l.permcustom.") + code + "." + column + ".check";
    ASSERT_TRUE(act(path.c_str(), "click", on ? "1" : "0"));
  }
  /// The dialog named `name` that is shown now, or null.
  mui::MuDialog* shownDialog(const char* name) {
    for (mui::MuDialog* dialog : root->dialogs()) {
      if (std::strcmp(dialog->name(), name) == 0 && dialog->isVisible())
        return dialog;
    }
    return nullptr;
  }
  /// The plain text of the message that `dialog`'s info frame shows; "" while hidden.
  std::string infoText(mui::MuDialog* dialog) {
    if (!at("info", dialog)->isShown())
      return "";
    return plat::Markup::Stripper(at("info.split.textLayout.text", dialog)->label()).get();
  }
  std::string text() { return configuration.getString("Permissions").get(); }
  /// The list's rows as "<image> <text>", one a line.
  std::string rows() {
    auto* list = static_cast<mui::MuList*>(at("split.list"));
    std::string all;
    for (int row = 0; row < list->rowCount(); ++row)
      all += std::string(list->cell(row, 0)) + " " + list->cell(row, 1) + "\n";
    return all;
  }
  /// Runs what was left for the loop, such as dialogs deleted after their close.
  void settle() { plat::TimerManager::get().process(); }

  std::unique_ptr<mui::MuiHeadless> root;
  plat::Configuration configuration{"Form", nullptr};
  std::unique_ptr<FormEditor> editor;
};

} // namespace sui::test
