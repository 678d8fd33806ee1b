// The alphabet: definition order, groups, the feature objects' lifetime and
// the misuses that end the process.
#include "xnauth/PermissionDefn.h"

#include "FeatureLetters.h"

#include <gtest/gtest.h>

#include <string>

namespace xnauth::test {
namespace {

std::string definedCodes() {
  std::string codes;
  for (const PermissionDefn& defn : getPermissionDefns())
    codes += defn.code;
  return codes;
}

// The members of `group` in letter order, or "<none>" when it isn't a group.
std::string groupMembers(char group) {
  auto it = getPermissionGroupDefns().find(group);
  if (it == getPermissionGroupDefns().end())
    return "<none>";
  std::string members;
  for (int i = 0; i < nCodes; ++i) {
    if (it->second[i])
      members += static_cast<char>(minCode + i);
  }
  return members;
}

std::string joinedParameters(const PermissionDefn& defn) {
  std::string joined;
  for (const plat::String& name : defn.parameters)
    joined += (joined.empty() ? "" : ",") + std::string(name.get());
  return joined;
}

using PermissionAlphabetTest = WithFeatureLetters;

TEST(PermissionDefnTest, BuiltInLettersAloneWithoutFeatures) {
  EXPECT_EQ(definedCodes(), "skpcq");
  EXPECT_EQ(groupMembers('f'), "ckpqs");
  EXPECT_EQ(groupMembers('d'), "ckps");
}

TEST(PermissionDefnTest, NewLettersSlideInFrontOfQ) {
  definePermission('x', "Extra", nullptr, nullptr);
  EXPECT_EQ(definedCodes(), "skpcxq");
  undefinePermission('x');
  EXPECT_EQ(definedCodes(), "skpcq");
  undefinePermission('x'); // undefined already: nothing happens
  EXPECT_EQ(definedCodes(), "skpcq");
}

TEST_F(PermissionAlphabetTest, FeaturesFollowBuiltInsWithQLast) {
  EXPECT_EQ(definedCodes(), "skpcznlhtrwq");
}

TEST_F(PermissionAlphabetTest, GroupsHaveTheirMembers) {
  const struct {
    char group;
    const char* members;
  } cases[] = {{'f', "chklnpqrstwz"}, {'d', "chklprstwz"}, {'v', "ls"}, {'i', "ckp"}};
  for (const auto& c : cases)
    EXPECT_EQ(groupMembers(c.group), c.members) << "group " << c.group;
  for (const PermissionDefn& defn : getPermissionDefns())
    EXPECT_EQ(groupMembers(defn.code), "<none>") << defn.code << " would read as a group";
}

TEST_F(PermissionAlphabetTest, DefinitionsCarryDescriptionAndParameters) {
  const struct {
    char code;
    const char* description;
    const char* parameters;
  } cases[] = {
      {'s', "View the desktop", ""},
      {'k', "Control desktop using keyboard", "AcceptKeyEvents"},
      {'p', "Control desktop using mouse", "AcceptPointerEvents"},
      {'c', "Copy and paste text in either direction", "AcceptCutText,SendCutText"},
      {'z', "Blank the screen while connected", "BlankScreen"},
      {'n', "Disable or enable local keyboard and mouse while connected",
       "LocalInputAllowClientControl"},
      {'l', "Hear audio from the desktop", "AudioEnable"},
      {'h', "Chat with other users", "EnableChat"},
      {'t', "Transfer files in either direction", "ShareFiles"},
      {'r', "Print to a local printer", "EnableRemotePrinting"},
      {'w', "Record the session", "SessionRecordEnable"},
      {'q', "Bypass connection accept/reject prompt", ""},
  };
  for (const auto& c : cases) {
    const PermissionDefn* defn = lookupPermissionDefn(c.code);
    ASSERT_NE(defn, nullptr) << c.code;
    EXPECT_EQ(defn->code, c.code);
    EXPECT_STREQ(defn->description.get(), c.description);
    EXPECT_EQ(joinedParameters(*defn), c.parameters) << c.code;
  }
  EXPECT_EQ(lookupPermissionDefn('x'), nullptr);
  EXPECT_EQ(lookupPermissionDefn('f'), nullptr) << "a group is no definition";
}

TEST(PermissionDefnTest, FeatureObjectDefinesItsLetterWhileItLives) {
  {
    smisc::AudioPermission audio;
    EXPECT_EQ(audio.code(), 'l');
    ASSERT_NE(lookupPermissionDefn('l'), nullptr);
    EXPECT_EQ(groupMembers('v'), "ls");
  }
  EXPECT_EQ(lookupPermissionDefn('l'), nullptr);
  EXPECT_EQ(groupMembers('v'), "s");
}

// Group 'y' and its emptiness outlive this test; no other test uses 'y'.
TEST(PermissionDefnTest, UndefineClearsMembershipButKeepsGroups) {
  definePermission('x', "Extra", "yv", ",One,,Two,");
  EXPECT_EQ(joinedParameters(*lookupPermissionDefn('x')), "One,Two");
  EXPECT_EQ(groupMembers('y'), "x");
  EXPECT_EQ(groupMembers('v'), "sx");
  undefinePermission('x');
  EXPECT_EQ(groupMembers('y'), "");
  EXPECT_EQ(groupMembers('v'), "s");
}

using PermissionDefnDeathTest = WithFeatureLetters;

TEST_F(PermissionDefnDeathTest, MisuseOfDefinitionIsFatal) {
  const char* rangeOrGroup = "Assertion 'code >= minCode && code < minCode\\+nCodes && "
                             "permissionGroupDefns\\.find\\(code\\) == "
                             "permissionGroupDefns\\.end\\(\\)' failed";
  const char* twice = "Assertion '!lookupPermissionDefn\\(code\\)' failed";
  EXPECT_EXIT(definePermission('f', "Group", nullptr, nullptr), ::testing::ExitedWithCode(1),
              rangeOrGroup);
  EXPECT_EXIT(definePermission('i', "Group", nullptr, nullptr), ::testing::ExitedWithCode(1),
              rangeOrGroup);
  EXPECT_EXIT(definePermission('A', "Upper", nullptr, nullptr), ::testing::ExitedWithCode(1),
              rangeOrGroup);
  EXPECT_EXIT(definePermission('{', "Past z", nullptr, nullptr), ::testing::ExitedWithCode(1),
              rangeOrGroup);
  EXPECT_EXIT(definePermission('s', "Built in", nullptr, nullptr), ::testing::ExitedWithCode(1),
              twice);
  EXPECT_EXIT(smisc::AudioPermission(), ::testing::ExitedWithCode(1), twice);
}

} // namespace
} // namespace xnauth::test
