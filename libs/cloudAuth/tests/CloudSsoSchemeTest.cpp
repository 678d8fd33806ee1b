// The single sign-on scheme against the editor's interface: three fields per
// entry, names kept by UUID, and the scheme's settled oddities.
#include "cloudAuth/PermissionsSchemeCloudSso.h"
#include "plat/tests/Capture.h"
#include "sui/tests/RecordingEditor.h"
#include "xnauth/Permissions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace cloudAuth::test {
namespace {

using Rows = std::vector<std::string>;

constexpr const char* sales = "11111111-2222-3333-4444-555555555555";

class CloudSsoSchemeTest : public testing::Test {
protected:
  void SetUp() override { editor.scheme = &scheme; }

  void activateWith(const std::string& text) {
    editor.setText(text.c_str());
    editor.rows.clear();
    scheme.activate();
  }
  /// Writes the list as any change of an entry does.
  std::string written() {
    scheme.permissionsChanged(0, 0);
    return editor.text();
  }

  sui::test::RecordingEditor editor;
  PermissionsSchemeCloudSso scheme{&editor, "Permissions"};
};

TEST_F(CloudSsoSchemeTest, ReadsTwoOrThreeFieldsAndAlwaysWritesThree) {
  const std::string s = sales;
  const struct {
    std::string text;
    Rows rows;
    std::string written;
  } cases[] = {
      {s + ":Sales:d", {"group Sales"}, s + ":Sales:d"},
      {s + ":f", {"group " + s}, s + ":" + s + ":f"},
      {"u1:a:b:d", {"group a:b"}, "u1:a:b:d"},
      {"u1::d", {"group "}, "u1::d"},
      {"u1:name:", {"group name"}, "u1:name:d"},
      {"S-1-5-32-544:f", {"group S-1-5-32-544"}, "S-1-5-32-544:S-1-5-32-544:f"},
      {"nocolon,:x:f,,u2:B:v,u1:A:f", {"group A", "group B"}, "u1:A:f,u2:B:v"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    activateWith(c.text);
    EXPECT_EQ(editor.rows, c.rows);
    EXPECT_EQ(editor.selected, -1);
    EXPECT_EQ(editor.text(), c.text) << "reading writes nothing";
    EXPECT_EQ(written(), c.written);
  }
}

TEST_F(CloudSsoSchemeTest, EachUuidFailsTheAccountCheckAndABadPermissionTextEscapes) {
  plattest::LogCapture capture;
  activateWith(std::string(sales) + ":Sales:d");
  EXPECT_EQ(
      capture.lines("PrincipalIdCheckerWin"),
      Rows{std::string("0 ID '") + sales + "' cannot be converted to a SID: no such account"});
  editor.setText("u1:name:Q");
  EXPECT_THROW(scheme.activate(), xnauth::Permissions::ParseException);
}

TEST_F(CloudSsoSchemeTest, AddingTwiceMakesTwoRowsThatShareOneName) {
  activateWith("");
  scheme.addGroup("", "Nothing");
  EXPECT_TRUE(editor.rows.empty());
  scheme.addGroup(sales, "Sales");
  EXPECT_EQ(editor.text(), std::string(sales) + ":Sales:d");
  EXPECT_EQ(editor.selected, 0);
  scheme.addGroup(sales, "");
  EXPECT_EQ(editor.rows, (Rows{"group Sales", "group " + std::string(sales)}));
  EXPECT_EQ(editor.selected, 1);
  EXPECT_EQ(editor.added, 2);
  // The later name is the UUID's name for both rows from now on.
  EXPECT_EQ(editor.text(), std::string(sales) + ":" + sales + ":d," + sales + ":" + sales + ":d");

  activateWith(std::string(sales) + ":Sales:d," + sales + ":Team:v");
  EXPECT_EQ(editor.rows, (Rows{"group Team", "group Team"}));
  editor.selectEntry(1);
  scheme.buttonClicked(nullptr);
  scheme.buttonClicked("remove");
  EXPECT_EQ(editor.rows, Rows{"group Team"}) << "the row keeps its text";
  EXPECT_EQ(editor.selected, 0);
  EXPECT_EQ(editor.text(), std::string(sales) + ":" + sales + ":d") << "the name went with the row";
}

TEST_F(CloudSsoSchemeTest, PolicyLocksTheEntriesAndTheButtons) {
  editor.setText("u1:A:f", 30);
  scheme.activate();
  editor.selectEntry(0);
  EXPECT_TRUE(scheme.isLocked());
  EXPECT_FALSE(editor.buttons["add"] || editor.buttons["remove"]);
  bool locked = false, enabled = true, flag = false;
  EXPECT_STREQ(scheme.getPermissions(0, locked, enabled, flag)->getText(), "f");
  EXPECT_TRUE(locked && flag);
}

} // namespace
} // namespace cloudAuth::test
