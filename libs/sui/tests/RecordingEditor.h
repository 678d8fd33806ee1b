// A stand-in for the permissions editor, for testing schemes through the
// interface they call: it keeps the rows, buttons and selection that a
// scheme asked for, and tells the scheme of selections as the editor does.
// Its configuration holds a parameter "Permissions" of its own.
#pragma once

#include "plat/Configuration.h"
#include "plat/StringParameter.h"
#include "sui/PermissionsScheme.h"
#include "sui/PermissionsSchemeEditor.h"

#include <map>
#include <string>
#include <vector>

namespace sui::test {

class RecordingEditor : public PermissionsSchemeEditor {
public:
  RecordingEditor() { configuration.addString("Permissions", "Access list", ""); }

  plat::Configuration* getConfiguration() override { return &configuration; }
  void addButton(const char* name, const char*, const char*) override {
    buttons.emplace(name, true);
  }
  void enableButton(const char* name, bool enabled) override {
    if (buttons.count(name))
      buttons[name] = enabled;
  }
  void insertEntry(int index, const char* text, const char* imageName) override {
    rows.insert(rows.begin() + index, std::string(imageName) + " " + text);
  }
  void removeEntry(int index) override {
    rows.erase(rows.begin() + index);
    selectEntry(index - 1);
  }
  void selectEntry(int index) override {
    selected = index;
    if (scheme)
      scheme->selectionChanged(index);
  }
  int getSelectedEntry() override { return selected; }
  void entryAdded() override { ++added; }

  /// The parameter's text.
  std::string text() { return configuration.getString("Permissions").get(); }
  void setText(const char* text, int priority = 10) {
    configuration.setParam("Permissions", text, priority);
  }

  plat::Configuration configuration{"Editor", nullptr};
  PermissionsScheme* scheme = nullptr;
  /// "<image> <text>" per row.
  std::vector<std::string> rows;
  std::map<std::string, bool> buttons;
  int selected = -1;
  int added = 0;
};

} // namespace sui::test
