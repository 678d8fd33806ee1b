// The single sign-on scheme in the editor's form: the texts it reads and
// writes, and the form driven as a user would, with groups given by UUID in
// the add dialog, presets and boxes, removal, and the parameter's text after
// each step.
#include "cloudAuth/PermissionsSchemeCloudSso.h"
#include "plat/tests/Capture.h"
#include "sui/tests/EditorForm.h"
#include "xnauth/Permissions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace cloudAuth::test {
namespace {

const std::string sales = "550e8400-e29b-41d4-a716-446655440000";
const std::string team = "6B-A7-B8-10-9D-AD-11-D1-80-B4-00-C0-4F-D4-30-C8";
constexpr const char* invalidUuid =
    "Please enter a valid UUID (e.g. 550e8400-e29b-41d4-a716-446655440000).";

class CloudSsoFormTest : public sui::test::EditorForm {
protected:
  void SetUp() override {
    EditorForm::SetUp();
    start(new PermissionsSchemeCloudSso(editor.get(), "Permissions"), "");
  }
  /// Clicks "add" and fills the dialog that opens; the dialog, or null once it has closed.
  mui::MuDialog* add(const std::string& uuid, const char* name) {
    EXPECT_TRUE(act("split.buttons.add", "click"));
    mui::MuDialog* dialog = shownDialog("cloudssoadd");
    EXPECT_NE(dialog, nullptr);
    EXPECT_TRUE(act("displayname", "settext", name, dialog));
    EXPECT_FALSE(act("buttons.ok", "click", nullptr, dialog)) << "Ok waits for a UUID";
    EXPECT_TRUE(act("groupuuid", "settext", uuid.c_str(), dialog));
    EXPECT_TRUE(act("buttons.ok", "click", nullptr, dialog));
    settle();
    return shownDialog("cloudssoadd");
  }
};

TEST_F(CloudSsoFormTest, ReadsTwoOrThreeFieldsAndAlwaysWritesThree) {
  const std::string s = sales;
  const struct {
    std::string text;
    std::string rows;
    std::string written;
  } cases[] = {
      {s + ":Sales:d", "group Sales\n", s + ":Sales:d"},
      {s + ":f", "group " + s + "\n", s + ":" + s + ":f"},
      {"u1:a:b:d", "group a:b\n", "u1:a:b:d"},
      {"u1::d", "group \n", "u1::d"},
      {"u1:name:", "group name\n", "u1:name:d"},
      {"S-1-5-32-544:f", "group S-1-5-32-544\n", "S-1-5-32-544:S-1-5-32-544:f"},
      {"nocolon,:x:f,,u2:B:v,u1:A:f", "group A\ngroup B\n", "u1:A:f,u2:B:v"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    start(new PermissionsSchemeCloudSso(editor.get(), "Permissions"), c.text.c_str());
    EXPECT_EQ(rows(), c.rows);
    EXPECT_EQ(editor->getSelectedEntry(), -1);
    EXPECT_EQ(text(), c.text) << "reading writes nothing";
    editor->scheme()->permissionsChanged(0, 0);
    EXPECT_EQ(text(), c.written);
  }
}

TEST_F(CloudSsoFormTest, EachUuidFailsTheAccountCheckAndABadPermissionTextEscapes) {
  plattest::LogCapture capture;
  start(new PermissionsSchemeCloudSso(editor.get(), "Permissions"), (sales + ":Sales:d").c_str());
  EXPECT_EQ(capture.lines("PrincipalIdCheckerWin"),
            std::vector<std::string>{"0 ID '" + sales +
                                     "' cannot be converted to a SID: no such account"});
  configuration.setParam("Permissions", "u1:name:Q", 10);
  EXPECT_THROW(editor->scheme()->activate(), xnauth::Permissions::ParseException);
}

TEST_F(CloudSsoFormTest, EachStepOfTheUserWritesThreeFields) {
  EXPECT_EQ(add(sales, "Sales"), nullptr);
  EXPECT_EQ(text(), sales + ":Sales:d");
  EXPECT_EQ(rows(), "group Sales\n");
  preset(1);
  EXPECT_EQ(text(), sales + ":Sales:v");
  preset(4);
  tick('k', "allow", true);
  tick('q', "deny", true);
  EXPECT_EQ(text(), sales + ":Sales:ks!q");

  EXPECT_EQ(add(team, ""), nullptr);
  EXPECT_EQ(text(), sales + ":Sales:ks!q," + team + ":" + team + ":d") << "the UUID as typed";
  EXPECT_EQ(add(sales, "Sales team"), nullptr);
  EXPECT_EQ(rows(), "group Sales\ngroup Sales team\ngroup " + team + "\n")
      << "a listed UUID gets a second row";
  EXPECT_EQ(text(),
            sales + ":Sales team:ks!q," + sales + ":Sales team:d," + team + ":" + team + ":d");

  pick(1);
  ASSERT_TRUE(act("split.buttons.remove", "click"));
  EXPECT_EQ(text(), sales + ":" + sales + ":ks!q," + team + ":" + team + ":d")
      << "the name went for both rows";
  EXPECT_EQ(editor->getSelectedEntry(), 0);
}

TEST_F(CloudSsoFormTest, AnInvalidUuidShowsTheExampleAndChangesNothing) {
  for (const char* uuid :
       {"not-a-uuid", "550e8400-e29b-41d4-a716-44665544000",
        "550e8400--e29b-41d4-a716-446655440000", "{550e8400e29b41d4a716446655440000}"}) {
    SCOPED_TRACE(uuid);
    mui::MuDialog* dialog = add(uuid, "Sales");
    ASSERT_NE(dialog, nullptr) << "the dialog stays open";
    EXPECT_EQ(infoText(dialog), invalidUuid);
    EXPECT_TRUE(at("groupuuid", dialog)->hasFocus());
    ASSERT_TRUE(act("displayname", "settext", "Other", dialog));
    EXPECT_EQ(infoText(dialog), invalidUuid) << "the name doesn't hide it";
    ASSERT_TRUE(act("groupuuid", "settext", "", dialog));
    EXPECT_EQ(infoText(dialog), "");
    EXPECT_FALSE(act("buttons.ok", "click", nullptr, dialog));
    ASSERT_TRUE(act("buttons.cancel", "click", nullptr, dialog));
    settle();
  }
  EXPECT_EQ(text(), "");
  EXPECT_EQ(rows(), "");
}

TEST_F(CloudSsoFormTest, UnderPolicyNothingCanBeAddedOrChanged) {
  start(new PermissionsSchemeCloudSso(editor.get(), "Permissions"), (sales + ":Sales:f").c_str(),
        30);
  ASSERT_TRUE(act("split.list", "select", "0"));
  EXPECT_FALSE(act("split.buttons.add", "click"));
  EXPECT_FALSE(act("split.buttons.remove", "click"));
  EXPECT_FALSE(act("settings.l.permset.choice", "select", "2"));
  EXPECT_EQ(text(), sales + ":Sales:f");
}

} // namespace
} // namespace cloudAuth::test
