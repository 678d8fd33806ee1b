// The system scheme in the editor's form, driven as a user would: names typed
// into the add dialog, presets chosen, boxes ticked, entries removed, with the
// parameter's text after each step. On this machine's own accounts: "root" a
// user and a group, "adm" a group, "nobody" a user.
#include "os/Accounts.h"
#include "plat/StringUtils.h"
#include "smisc/NameResolverSystemAuth.h"
#include "smisc/PermissionsSchemeSystemAuth.h"
#include "sui/tests/EditorForm.h"

#include <gtest/gtest.h>

#include <string>

namespace smisc::test {
namespace {

class SystemAuthFormTest : public sui::test::EditorForm {
protected:
  void SetUp() override {
    EditorForm::SetUp();
    sysauth::nameResolver = &resolver;
    plat::String name = os::computerName();
    plat::upperAscii(name.data());
    host = std::string(name.get()) + "\\";
  }
  void TearDown() override {
    sysauth::nameResolver = nullptr;
    EditorForm::TearDown();
  }

  void startWith(const char* text, int priority = 10) {
    start(new PermissionsSchemeSystemAuth(editor.get()), text, priority);
  }
  /// Clicks "add" and gives the name and kind in the dialog that opens; the
  /// dialog, or null once it has closed.
  mui::MuDialog* add(const char* name, bool isGroup) {
    EXPECT_TRUE(act("split.buttons.add", "click"));
    mui::MuDialog* dialog = shownDialog("systemauthadd");
    EXPECT_NE(dialog, nullptr);
    EXPECT_FALSE(act("buttons.ok", "click", nullptr, dialog)) << "Ok waits for a name";
    EXPECT_TRUE(act("type", "select", isGroup ? "1" : "0", dialog));
    EXPECT_TRUE(act("name", "settext", name, dialog));
    EXPECT_TRUE(act("buttons.ok", "click", nullptr, dialog));
    settle();
    return shownDialog("systemauthadd");
  }

  NameResolverSystemAuth resolver;
  std::string host;
};

TEST_F(SystemAuthFormTest, ReadingListsSortedEntriesSelectsNoneAndWritesNothing) {
  startWith("%adm:d,root:f,nobody:v,*:d");
  EXPECT_EQ(rows(), "user All users\nuser nobody (" + host + "nobody)\nuser root (" + host +
                        "root)\ngroup " + host + "adm\n");
  EXPECT_EQ(editor->getSelectedEntry(), -1);
  EXPECT_TRUE(at("split.buttons.add")->isEnabled());
  EXPECT_FALSE(at("split.buttons.remove")->isEnabled());
  EXPECT_EQ(text(), "%adm:d,root:f,nobody:v,*:d");
  pick(3);
  EXPECT_EQ(text(), "%adm:d,root:f,nobody:v,*:d") << "selecting writes nothing";

  startWith("root:f,alice:f:g");
  EXPECT_EQ(rows(), "") << "one bad entry empties the list, without a word";
  EXPECT_EQ(text(), "root:f,alice:f:g");
}

TEST_F(SystemAuthFormTest, EachStepOfTheUserWritesTheSortedList) {
  startWith("root:f");
  EXPECT_EQ(rows(), "user root (" + host + "root)\n");
  EXPECT_EQ(add("adm", true), nullptr);
  EXPECT_EQ(text(), "root:f,%adm:d");
  EXPECT_EQ(editor->getSelectedEntry(), 1) << "the new entry";
  preset(3);
  EXPECT_EQ(text(), "root:f,%adm:f");
  preset(4);
  EXPECT_EQ(text(), "root:f,%adm:ckpqs");
  tick('q', "deny", true);
  EXPECT_EQ(text(), "root:f,%adm:ckps!q");
  tick('s', "allow", false);
  EXPECT_EQ(text(), "root:f,%adm:ckp!q");

  EXPECT_EQ(add("nobody", false), nullptr);
  EXPECT_EQ(text(), "nobody:d,root:f,%adm:ckp!q");
  EXPECT_EQ(rows(), "user nobody (" + host + "nobody)\nuser root (" + host + "root)\ngroup " +
                        host + "adm\n");
  EXPECT_EQ(add("*", false), nullptr);
  EXPECT_EQ(text(), "*:d,nobody:d,root:f,%adm:ckp!q");
  EXPECT_EQ(add("adm", true), nullptr);
  EXPECT_EQ(editor->getSelectedEntry(), 3) << "a listed name selects its row";
  EXPECT_EQ(text(), "*:d,nobody:d,root:f,%adm:ckp!q");

  pick(1);
  ASSERT_TRUE(act("split.buttons.remove", "click"));
  EXPECT_EQ(text(), "*:d,root:f,%adm:ckp!q");
  EXPECT_EQ(editor->getSelectedEntry(), 0) << "the entry above";
  ASSERT_TRUE(act("split.buttons.remove", "click"));
  EXPECT_EQ(text(), "root:f,%adm:ckp!q");
  EXPECT_EQ(editor->getSelectedEntry(), -1);
  EXPECT_FALSE(act("split.buttons.remove", "click"));
}

TEST_F(SystemAuthFormTest, ANameThatIsNoAccountOfItsKindShowsWhyAndChangesNothing) {
  startWith("root:f");
  const struct {
    const char* name;
    bool isGroup;
    std::string message;
  } cases[] = {
      {"no-such-xn", false,
       "Invalid security principal: no user or group named “no-such-xn” was found."},
      {"nobody", true, "Invalid security principal: expected a group, but “nobody” is a user."},
      {"adm", false, "Invalid security principal: didn't expect a group, but “adm” is a group."},
      {" root", false, "Invalid security principal: no user or group named “ root” was found."},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    mui::MuDialog* dialog = add(c.name, c.isGroup);
    ASSERT_NE(dialog, nullptr) << "the dialog stays open";
    EXPECT_EQ(infoText(dialog), c.message);
    EXPECT_TRUE(at("name", dialog)->hasFocus());
    EXPECT_EQ(text(), "root:f");
    EXPECT_EQ(rows(), "user root (" + host + "root)\n");
    ASSERT_TRUE(act("name", "settext", "root", dialog));
    EXPECT_EQ(infoText(dialog), "") << "typing hides the message";
    ASSERT_TRUE(act("buttons.cancel", "click", nullptr, dialog));
    settle();
    EXPECT_EQ(text(), "root:f");
  }
}

TEST_F(SystemAuthFormTest, UnderPolicyTheListCanBeLookedAtAndNothingChanged) {
  startWith("root:f,%adm:d", 30);
  pick(1);
  EXPECT_FALSE(act("split.buttons.add", "click"));
  EXPECT_FALSE(act("split.buttons.remove", "click"));
  EXPECT_FALSE(act("settings.l.permset.choice", "select", "4"));
  EXPECT_FALSE(act("settings.l.permcustom.k.allow.check", "click", "0"));
  EXPECT_EQ(shownDialog("systemauthadd"), nullptr);
  EXPECT_EQ(text(), "root:f,%adm:d");
}

} // namespace
} // namespace smisc::test
