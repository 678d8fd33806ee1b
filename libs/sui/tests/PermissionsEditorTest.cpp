// The editor's form against a scheme that keeps its sets in a vector: what
// the preset choice and the boxes show for an entry, how a change of either
// reaches the entry and the scheme, locking, rows, buttons and entries.
// Letters are the built-in ones, s k p c q, so "d" stands for c k p s.
#include "mui/MuCheck.h"
#include "mui/MuChoice.h"
#include "mui/MuList.h"
#include "mui/headless/MuListHeadless.h"
#include "sui/PermissionsScheme.h"
#include "sui/tests/EditorForm.h"
#include "xnauth/Permissions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sui::test {
namespace {

class VectorScheme : public PermissionsScheme {
public:
  VectorScheme(PermissionsSchemeEditor* editor, std::vector<const char*> texts) : editor_(editor) {
    for (const char* text : texts)
      sets.emplace_back(text);
  }
  void activate() override {
    for (int i = 0; i < static_cast<int>(sets.size()); ++i)
      editor_->insertEntry(i, ("entry" + std::to_string(i)).c_str(), "user");
    editor_->addButton("add", "&Add...", "Add one.");
    editor_->addButton("add", "&Again", nullptr);
    editor_->addButton("remove", "&Remove", nullptr);
    editor_->selectEntry(-1);
  }
  xnauth::Permissions* getPermissions(int index, bool& isLocked, bool&, bool& flag) override {
    isLocked = locked;
    flag = true;
    return &sets[static_cast<std::size_t>(index)];
  }
  void permissionsChanged(int index, char code) override {
    heard.push_back(std::to_string(index) + (code ? std::string(1, code) : "") + "=" +
                    sets[static_cast<std::size_t>(index)].getText());
  }
  void selectionChanged(int index) override {
    editor_->enableButton("remove", index >= 0);
    editor_->enableButton("nosuch", false);
  }
  void buttonClicked(const char* name) override { heard.push_back(name); }
  void entryActivated() override { heard.push_back("activated"); }

  std::vector<xnauth::Permissions> sets;
  std::vector<std::string> heard;
  bool locked = false;

private:
  PermissionsSchemeEditor* editor_;
};

class PermissionsEditorTest : public EditorForm {
protected:
  VectorScheme* startWith(std::vector<const char*> texts, bool locked = false) {
    auto* scheme = new VectorScheme(editor.get(), std::move(texts));
    scheme->locked = locked;
    start(scheme, "");
    return scheme;
  }
  mui::MuChoice* choice() { return static_cast<mui::MuChoice*>(at("settings.l.permset.choice")); }
  mui::MuCheck* box(char code, const char* column) {
    std::string path = std::string("settings.l.permcustom.") + code + "." + column + ".check";
    return static_cast<mui::MuCheck*>(at(path.c_str()));
  }
  /// Each row's letter, with "+" for its allow box on and "!" for its deny box.
  std::string boxes() {
    std::string shown;
    for (char code : rowOrder()) {
      shown += std::string(shown.empty() ? "" : " ") + code;
      shown += box(code, "allow")->getValue() ? "+" : "";
      shown += box(code, "deny")->getValue() ? "!" : "";
    }
    return shown;
  }
  /// The letters whose two boxes the user can change.
  std::string operable() {
    std::string letters;
    for (char code : rowOrder()) {
      if (box(code, "allow")->isOperable() && box(code, "deny")->isOperable())
        letters += code;
    }
    return letters;
  }
  std::string rowOrder() {
    auto* grid = static_cast<mui::MuContainer*>(at("settings.l.permcustom"));
    std::string letters;
    for (int i = 0; i < grid->childCount(); ++i) {
      const char* name = grid->getChild(i)->name();
      if (name && name[1] == '\0')
        letters += name;
    }
    return letters;
  }
  bool helpShown() { return at("settings.l.permcustom.help")->isVisible(); }
  std::string presets() { return choice()->describeItems().get(); }
};

constexpr const char* allPresets = "0:No access\n1:View-only permissions\n2:Normal permissions\n"
                                   "3:Administrative permissions\n4:Custom permissions\n";
constexpr const char* entryPresets = "1:View-only permissions\n2:Normal permissions\n"
                                     "3:Administrative permissions\n4:Custom permissions\n";

TEST_F(PermissionsEditorTest, WithoutASelectionNothingCanBeChanged) {
  startWith({"d"});
  EXPECT_EQ(rowOrder(), "skpcq");
  EXPECT_FALSE(choice()->isEnabled());
  EXPECT_EQ(presets(), allPresets);
  EXPECT_EQ(choice()->getValue(), -1);
  EXPECT_EQ(boxes(), "s k p c q");
  EXPECT_EQ(operable(), "");
  EXPECT_FALSE(helpShown());
  EXPECT_FALSE(act("settings.l.permset.choice", "select", "3"));
}

TEST_F(PermissionsEditorTest, AnEntryShowsItsPresetByTextOrElseCustom) {
  const struct {
    const char* text;
    int preset;
    const char* boxes;
  } cases[] = {
      {"d", 2, "s+ k+ p+ c+ q"},    {"v", 1, "s+ k p c q"},     {"f", 3, "s+ k+ p+ c+ q+"},
      {"ckps", 4, "s+ k+ p+ c+ q"}, {"", 4, "s k p c q"},       {"!q", 4, "s k p c q!"},
      {"d!q", 4, "s+ k+ p+ c+ q!"}, {"+0s-k", 4, "s+ k p c q"},
  };
  std::vector<const char*> texts;
  for (const auto& c : cases)
    texts.push_back(c.text);
  startWith(texts);
  for (std::size_t row = 0; row < texts.size(); ++row) {
    SCOPED_TRACE(texts[row]);
    pick(static_cast<int>(row));
    EXPECT_EQ(choice()->getValue(), cases[row].preset);
    EXPECT_EQ(presets(), entryPresets) << "no \"No access\" while an entry is selected";
    EXPECT_EQ(boxes(), cases[row].boxes);
    bool custom = cases[row].preset == 4;
    EXPECT_EQ(operable(), custom ? "skpcq" : "");
    EXPECT_EQ(helpShown(), custom);
  }
}

TEST_F(PermissionsEditorTest, PresetsAndBoxesChangeTheEntryAndTellTheScheme) {
  VectorScheme* scheme = startWith({"v", "d"});
  pick(1);
  preset(4);
  EXPECT_EQ(operable(), "skpcq");
  EXPECT_TRUE(helpShown());
  preset(2);
  EXPECT_EQ(operable(), "");
  preset(4);
  tick('q', "deny", true);
  tick('q', "allow", true);
  EXPECT_EQ(boxes(), "s+ k+ p+ c+ q+") << "allow turned deny off";
  tick('q', "deny", true);
  EXPECT_EQ(boxes(), "s+ k+ p+ c+ q!");
  tick('k', "allow", false);
  tick('q', "deny", false);
  tick('k', "allow", true);
  EXPECT_EQ(choice()->getValue(), 4) << "custom stays, though the letters are a preset's";
  preset(3);
  EXPECT_EQ(boxes(), "s+ k+ p+ c+ q+");
  EXPECT_EQ(scheme->heard,
            (std::vector<std::string>{"1=ckps", "1=d", "1=ckps", "1q=ckps!q", "1q=ckpqs",
                                      "1q=ckps!q", "1k=cps!q", "1q=cps", "1k=ckps", "1=f"}));
  EXPECT_STREQ(scheme->sets[0].getText(), "v") << "the other entry is untouched";
}

TEST_F(PermissionsEditorTest, ALockedEntryCanBeLookedAtAndNotChanged) {
  VectorScheme* scheme = startWith({"!q", "d"}, true);
  pick(0);
  EXPECT_EQ(boxes(), "s k p c q!");
  EXPECT_TRUE(choice()->isLocked());
  EXPECT_TRUE(box('q', "deny")->isLocked() && box('s', "allow")->isLocked());
  EXPECT_EQ(operable(), "");
  EXPECT_FALSE(act("settings.l.permset.choice", "select", "2"));
  EXPECT_FALSE(act("settings.l.permcustom.q.deny.check", "click", "0"));
  EXPECT_TRUE(scheme->heard.empty());
  EXPECT_STREQ(scheme->sets[0].getText(), "!q");
}

TEST_F(PermissionsEditorTest, ButtonsAndEntriesBelongToTheSchemeInForce) {
  VectorScheme* scheme = startWith({"d", "v"});
  EXPECT_TRUE(at("split.buttons")->isVisible());
  EXPECT_EQ(static_cast<mui::MuContainer*>(at("split.buttons"))->childCount(), 2);
  EXPECT_FALSE(at("split.buttons.remove")->isEnabled());
  ASSERT_TRUE(act("split.buttons.add", "click"));
  pick(1);
  ASSERT_TRUE(act("split.buttons.remove", "click"));
  static_cast<mui::MuListHeadless*>(at("split.list"))->doubleClickRow(1);
  EXPECT_EQ(scheme->heard, (std::vector<std::string>{"add", "remove", "activated"}));

  editor->removeEntry(0);
  EXPECT_EQ(rows(), "user entry1\n");
  EXPECT_EQ(editor->getSelectedEntry(), -1) << "nothing above the first entry";
  editor->insertEntry(1, "last", "group");
  editor->selectEntry(1);
  EXPECT_EQ(rows(), "user entry1\ngroup last\n");
  EXPECT_DEATH(editor->insertEntry(3, "beyond", "user"), "index <= schemeEndIndex");

  editor->setScheme(nullptr);
  EXPECT_EQ(rows(), "");
  EXPECT_FALSE(at("split.buttons")->isVisible());
  EXPECT_EQ(static_cast<mui::MuContainer*>(at("split.buttons"))->childCount(), 0);
}

TEST_F(PermissionsEditorTest, LaterLettersGoInFrontOfQ) {
  xnauth::definePermission('x', "Test letter", "", nullptr);
  {
    FormEditor form(configuration);
    xnauth::definePermission('y', "Later letter", "", nullptr);
    form.addPermissionRow('y');
    std::string order;
    auto* grid = static_cast<mui::MuContainer*>(form.getDialog()->find("settings.l.permcustom"));
    for (int i = 0; i < grid->childCount(); ++i)
      order += std::string(grid->getChild(i)->name()) + " ";
    EXPECT_EQ(order, "heading s k p c help x y q ");
  }
  xnauth::undefinePermission('x');
  xnauth::undefinePermission('y');
}

} // namespace
} // namespace sui::test
