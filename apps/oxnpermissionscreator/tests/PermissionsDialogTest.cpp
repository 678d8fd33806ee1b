// The application's dialog on the headless binding, driven as a user would:
// the form and the text stay apart until one of the two buttons (or Return
// in the edit box) carries the content across, through the parameter.
#include "oxnpermissionscreator/PermissionsDialog.h"

#include "oxnpermissionscreator/EntryFrame.h"
#include "oxnpermissionscreator/FeaturePermissions.h"
#include "oxnpermissionscreator/TextKeys.h"

#include "io/SocketManager.h"
#include "mui/MuEdit.h"
#include "mui/MuFrame.h"
#include "mui/MuLayout.h"
#include "mui/MuList.h"
#include "mui/Mui.h"
#include "mui/MuiParameters.h"
#include "mui/headless/MuDialogHeadless.h"
#include "mui/headless/MuListHeadless.h"
#include "mui/headless/MuiHeadless.h"
#include "os/AppInfo.h"
#include "os/AppLoop.h"
#include "plat/TimerManager.h"
#include "smisc/PermissionsParameter.h"
#include "xnauth/Permissions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace {

constexpr int returnKey = 0xFF0D;

class PermissionsDialogForm : public testing::Test {
protected:
  void SetUp() override {
    io::processSocketManager();
    os::setAppInfo(app::applicationName, "Ostrand", "oxn",
                   textkey::oxnpermissionscreator_app_name_r, nullptr);
    app::defineFeaturePermissions();
    mui::ppmmParameter.setInt(4, 10);
    root = std::make_unique<mui::MuiHeadless>();
    mui::installHeadlessBinding(*root);
  }
  void TearDown() override {
    dialog.reset();
    plat::TimerManager::get().process();
    root.reset();
    smisc::permissionsParameter.unset(10, false);
    mui::ppmmParameter.unset(10, false);
  }

  /// The program's start with `text` given as the parameter.
  void start(const char* text) {
    smisc::permissionsParameter.setFromString(text, 10);
    dialog = std::make_unique<app::PermissionsDialog>();
    dialog->open();
  }
  mui::MuElement* at(const std::string& path) {
    mui::MuElement* element = dialog->getDialog()->find(("s1.f1.main." + path).c_str());
    EXPECT_NE(element, nullptr) << path;
    return element;
  }
  void act(const std::string& path, const char* action, const char* argument = nullptr) {
    ASSERT_TRUE(at(path)->perform(action, argument)) << path << " " << action;
  }
  void pick(int row) { act("split.list", "select", std::to_string(row).c_str()); }
  void type(const char* text) { act("permissionstring", "settext", text); }
  bool pressReturn() {
    return static_cast<mui::MuDialogHeadless*>(dialog->getDialog())->pressKey(returnKey);
  }
  std::string box() { return static_cast<mui::MuEdit*>(at("permissionstring"))->getText().get(); }
  std::string parameter() { return smisc::permissionsParameter.getValueString().get(); }
  mui::MuList* list() { return static_cast<mui::MuList*>(at("split.list")); }
  std::string names() {
    std::string all;
    for (int row = 0; row < list()->rowCount(); ++row)
      all += std::string(list()->cell(row, 1)) + ";";
    return all;
  }
  bool boxEnabled(char letter) {
    return at(std::string("settings.l.permcustom.") + letter + ".allow.check")->isEnabled();
  }

  std::unique_ptr<mui::MuiHeadless> root;
  std::unique_ptr<app::PermissionsDialog> dialog;
};

TEST_F(PermissionsDialogForm, StartsWithTheTextInTheBoxAndItsEntriesListedWithNoneSelected) {
  start("S-1-5-18:v,S-1-5-32-545:d");
  EXPECT_EQ(box(), "S-1-5-18:v,S-1-5-32-545:d");
  EXPECT_EQ(names(), "BUILTIN\\Users;NT AUTHORITY\\SYSTEM;");
  EXPECT_EQ(list()->getSelection(), -1);
  EXPECT_FALSE(boxEnabled('s'));
  EXPECT_FALSE(at("settings.l.permset.choice")->isEnabled());
}

TEST_F(PermissionsDialogForm, FormAndTextMeetOnlyThroughTheTwoButtons) {
  start("S-1-5-32-545:d,S-1-5-18:v");
  pick(0);
  act("settings.l.permset.choice", "select", "3");
  EXPECT_EQ(parameter(), "S-1-5-32-545:f,S-1-5-18:v");
  EXPECT_EQ(box(), "S-1-5-32-545:d,S-1-5-18:v");
  act("tl.refreshtext", "click");
  EXPECT_EQ(box(), "S-1-5-32-545:f,S-1-5-18:v");

  type("%S-1-5-32-546:!q,S-1-5-32-544:v");
  EXPECT_EQ(parameter(), "S-1-5-32-545:f,S-1-5-18:v");
  EXPECT_EQ(names(), "BUILTIN\\Users;NT AUTHORITY\\SYSTEM;");
  act("tl.refreshui", "click");
  EXPECT_EQ(parameter(), "%S-1-5-32-546:!q,S-1-5-32-544:v");
  EXPECT_EQ(names(), "BUILTIN\\Administrators;BUILTIN\\Guests;");
  // The entries come in list order, so the last one ends up selected.
  EXPECT_EQ(list()->getSelection(), 1);
  EXPECT_EQ(box(), "%S-1-5-32-546:!q,S-1-5-32-544:v");
}

TEST_F(PermissionsDialogForm, ReturnInTheBoxAppliesTheTextAndElsewherePressesRefreshParameter) {
  start("S-1-5-18:v");
  type("S-1-5-32-544:d");
  at("permissionstring")->setFocus();
  EXPECT_TRUE(pressReturn());
  EXPECT_EQ(names(), "BUILTIN\\Administrators;");

  at("split.list")->setFocus();
  type("S-1-5-18:v");
  EXPECT_TRUE(pressReturn());
  EXPECT_EQ(names(), "BUILTIN\\Administrators;");
  EXPECT_EQ(box(), "S-1-5-32-544:d");

  // On a selected row too: only a double-click activates one.
  type("S-1-5-18:v");
  pick(0);
  static_cast<mui::MuListHeadless*>(list())->pressKey(returnKey);
  EXPECT_EQ(names(), "BUILTIN\\Administrators;");
  EXPECT_EQ(box(), "S-1-5-32-544:d");
}

TEST_F(PermissionsDialogForm, BadAndEmptyTextsUnderEachScheme) {
  start("S-1-5-18:v");
  for (const char* text : {"S-1-5-18:?", ""}) {
    type(text);
    act("tl.refreshui", "click");
    EXPECT_EQ(names(), "") << text;
    EXPECT_EQ(parameter(), text);
    EXPECT_EQ(box(), text);
  }
  type("S-1-5-18:?");
  act("tl.refreshui", "click");
  act("tl.refreshtext", "click");
  EXPECT_EQ(box(), "");

  act("schemeChoice", "select", "1");
  type("11111111-2222-3333-4444-555555555555:Sales:?");
  EXPECT_THROW(act("tl.refreshui", "click"), xnauth::Permissions::ParseException);
}

TEST_F(PermissionsDialogForm, EachSchemeReadsTheParameterInItsOwnForm) {
  start("11111111-2222-3333-4444-555555555555:Sales:d");
  EXPECT_EQ(names(), "");
  act("schemeChoice", "select", "1");
  EXPECT_EQ(names(), "Sales;");
  act("schemeChoice", "select", "0");
  EXPECT_EQ(names(), "");
  EXPECT_EQ(box(), "11111111-2222-3333-4444-555555555555:Sales:d");
}

TEST_F(PermissionsDialogForm, AfterARemovalTheFirstRowIsHighlightedAndTheBoxesStayDisabled) {
  start("S-1-5-32-544:d,S-1-5-32-545:d,S-1-5-18:d");
  pick(2);
  act("settings.l.permset.choice", "select", "4");
  EXPECT_TRUE(boxEnabled('s'));
  act("split.buttons.remove", "click");
  EXPECT_EQ(names(), "BUILTIN\\Administrators;BUILTIN\\Users;");
  EXPECT_EQ(list()->getSelection(), 0);
  EXPECT_FALSE(boxEnabled('s'));
}

TEST_F(PermissionsDialogForm, LaysOutTheFormToTheWindowsEdgesWithBothRefreshButtonsEquallyWide) {
  start("");
  mui::MuElement* refreshText = at("tl.refreshtext");
  mui::MuElement* refreshUi = at("tl.refreshui");
  const int width = std::max(refreshText->minWidth(1), refreshUi->minWidth(1));
  auto* tl = static_cast<mui::MuLayout*>(at("tl"));
  auto* links = static_cast<mui::MuLayout*>(at("layout"));
  const struct {
    mui::MuLayout* layout;
    mui::MuElement* child;
    int mode;
    int size;
  } entries[] = {
      {static_cast<mui::MuLayout*>(dialog->getDialog()->find("s1.f1.main")), at("split"), 2, 1},
      {tl, tl->getChild(0), 2, 1},
      {tl, refreshText, 1, width},
      {tl, refreshUi, 1, width},
      {tl, tl->getChild(tl->childCount() - 1), 2, 1},
      {links, links->getChild(0), 2, 1},
      // A natural entry's size is its measure, taken at each layout.
      {links, at("layout.aboutLink"), 32, at("layout.aboutLink")->getSize().width}};
  for (const auto& entry : entries) {
    int mode = -1, size = -1;
    const int row = static_cast<int>(&entry - entries);
    ASSERT_TRUE(entry.layout->childLayout(entry.child, &mode, &size)) << row;
    EXPECT_EQ(mode, entry.mode) << row;
    EXPECT_EQ(size, entry.size) << row;
  }
  EXPECT_EQ(refreshText->getSize().width, width);
  EXPECT_EQ(refreshUi->getSize().width, width);
  // The scroll reaches the window's edges; the frame inside it keeps the margin.
  const int margin = mui::Mui::metric(mui::MetricDialogMargin);
  EXPECT_EQ(dialog->getDialog()->margin(), 0);
  EXPECT_EQ(static_cast<mui::MuFrame*>(dialog->getDialog()->find("s1.f1"))->margin(),
            (mui::Size{margin, margin}));
}

TEST_F(PermissionsDialogForm, ClosingTheAboutBoxLeavesTheLoopAndClosingTheWindowEndsItWithZero) {
  os::AppLoop loop;
  start("");
  act("layout.aboutLink", "click");
  mui::MuDialog* about = root->dialogs().back();
  ASSERT_TRUE(about->isVisible());
  static_cast<mui::MuDialogHeadless*>(about)->closeByUser();
  EXPECT_FALSE(loop.stopRequested());
  static_cast<mui::MuDialogHeadless*>(dialog->getDialog())->closeByUser();
  EXPECT_TRUE(loop.stopRequested());
  EXPECT_EQ(loop.run(), 0);
}

} // namespace
