// The system scheme against the editor's interface, on this machine's own
// accounts ("root" a user and a group, "adm" a group, "nobody" a user), with
// the program's resolver in place so that entries sort by the names shown.
#include "os/Accounts.h"
#include "plat/StringUtils.h"
#include "smisc/NameResolverSystemAuth.h"
#include "smisc/PermissionsSchemeSystemAuth.h"
#include "sui/tests/RecordingEditor.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace smisc::test {
namespace {

using Rows = std::vector<std::string>;

class SystemAuthSchemeTest : public testing::Test {
protected:
  void SetUp() override {
    sysauth::nameResolver = &resolver;
    editor.scheme = &scheme;
    plat::String name = os::computerName();
    plat::upperAscii(name.data());
    host = std::string(name.get()) + "\\";
  }
  void TearDown() override { sysauth::nameResolver = nullptr; }

  /// Reads `text` afresh, as the dialog does on applying a text.
  void activateWith(const char* text, int priority = 10) {
    editor.setText(text, priority);
    editor.rows.clear();
    scheme.activate();
  }
  std::unique_ptr<sysauth::SecurityPrincipal> principal(const char* id, bool isGroup) {
    return std::make_unique<sysauth::SecurityPrincipal>(id, xnauth::Permissions("d"), isGroup,
                                                        nullptr);
  }

  NameResolverSystemAuth resolver;
  sui::test::RecordingEditor editor;
  PermissionsSchemeSystemAuth scheme{&editor};
  std::string host;
};

TEST_F(SystemAuthSchemeTest, ActivateListsSortedEntriesSelectsNoneAndWritesNothing) {
  activateWith("%adm:d,root:f,nobody:v,*:d");
  EXPECT_EQ(editor.rows, (Rows{"user All users", "user nobody (" + host + "nobody)",
                               "user root (" + host + "root)", "group " + host + "adm"}));
  EXPECT_EQ(editor.selected, -1);
  EXPECT_TRUE(editor.buttons["add"]);
  EXPECT_FALSE(editor.buttons["remove"]);
  EXPECT_EQ(editor.text(), "%adm:d,root:f,nobody:v,*:d") << "reading writes nothing";

  activateWith("root:f,alice:f:g");
  EXPECT_TRUE(editor.rows.empty()) << "one bad entry empties the list";
  EXPECT_EQ(editor.text(), "root:f,alice:f:g");
}

TEST_F(SystemAuthSchemeTest, EveryChangeWritesTheRenderedListAndSelectingDoesNot) {
  activateWith("%adm:d,root:f");
  editor.selectEntry(0);
  EXPECT_TRUE(editor.buttons["remove"]);
  EXPECT_EQ(editor.text(), "%adm:d,root:f");

  bool locked = true, enabled = true, flag = false;
  xnauth::Permissions* root = scheme.getPermissions(0, locked, enabled, flag);
  EXPECT_FALSE(locked);
  EXPECT_TRUE(flag);
  root->setState('q', xnauth::Deny);
  scheme.permissionsChanged(0, 'q');
  EXPECT_EQ(editor.text(), "root:ckps!q,%adm:d");

  scheme.addPrincipal(principal("nobody", false));
  EXPECT_EQ(editor.selected, 0);
  EXPECT_EQ(editor.rows[0], "user nobody (" + host + "nobody)");
  EXPECT_EQ(editor.text(), "nobody:d,root:ckps!q,%adm:d");

  // The same id selects its row and keeps its text; the other kind is another entry.
  scheme.addPrincipal(principal("root", false));
  EXPECT_EQ(editor.selected, 1);
  EXPECT_EQ(editor.text(), "nobody:d,root:ckps!q,%adm:d");
  scheme.addPrincipal(principal("root", true));
  EXPECT_EQ(editor.selected, 3);
  EXPECT_EQ(editor.text(), "nobody:d,root:ckps!q,%adm:d,%root:d");

  scheme.buttonClicked("remove");
  EXPECT_EQ(editor.text(), "nobody:d,root:ckps!q,%adm:d");
  EXPECT_EQ(editor.selected, 2) << "the entry above";
  editor.selectEntry(0);
  scheme.buttonClicked("remove");
  EXPECT_EQ(editor.selected, -1);
  EXPECT_FALSE(editor.buttons["remove"]);
  EXPECT_EQ(editor.text(), "root:ckps!q,%adm:d");
  scheme.buttonClicked("remove");
  EXPECT_EQ(editor.text(), "root:ckps!q,%adm:d") << "nothing selected, nothing removed";
}

TEST_F(SystemAuthSchemeTest, PolicyLocksTheEntriesAndTheButtons) {
  activateWith("root:f", 30);
  EXPECT_TRUE(scheme.isLocked());
  editor.selectEntry(0);
  EXPECT_FALSE(editor.buttons["add"]);
  EXPECT_FALSE(editor.buttons["remove"]);
  bool locked = false, enabled = true, flag = false;
  scheme.getPermissions(0, locked, enabled, flag);
  EXPECT_TRUE(locked);

  editor.configuration.getParam("Permissions")->unset(30, false);
  activateWith("root:f");
  EXPECT_FALSE(scheme.isLocked());
}

} // namespace
} // namespace smisc::test
