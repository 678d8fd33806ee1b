// Access lists read and written on this machine's own accounts: "root" is a
// user and a group, "adm" only a group and "nobody" only a user. No resolver
// is set, so entries sort by their ids.
#include "os/Accounts.h"
#include "plat/tests/Capture.h"
#include "plat/tests/ErrorText.h"
#include "sysauth/SecurityPrincipalList.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sysauth::test {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* checkLog = "PrincipalIdCheckerWin";

std::string failure(const char* id, const char* why) {
  return std::string("0 ID '") + id + "' cannot be converted to a SID: " + why;
}

TEST(SecurityPrincipalListTest, ParsesChecksSortsAndRenders) {
  std::string host = os::computerName().get();
  const struct {
    std::string text;
    const char* rendered;
    Lines log;
  } cases[] = {
      {"", "", {}},
      {",,,", "", {}},
      {"*:f", "*:f", {}},
      {":f", ":f", {}},
      {"alice", "alice:", {failure("alice", "no such account")}},
      {",alice:,", "alice:", {failure("alice", "no such account")}},
      {" alice:f", " alice:f", {failure(" alice", "no such account")}},
      {"S-1-5-18:f,%S-1-5-32-544:d", "S-1-5-18:f,%S-1-5-32-544:d", {}},
      {"%root:d,%adm:v,root:f", "root:f,%adm:v,%root:d", {}},
      {"S-1-9:f,S-1-9:d", "S-1-9:f,S-1-9:d", {}},
      {host + "\\root:f", "root:f", {}},
      {"<LOCAL>\\root:f,%<LOCAL>\\adm:v", "<LOCAL>\\root:f,%<LOCAL>\\adm:v", {}},
      {"<LOCAL>\\no-such-xn:f",
       "<LOCAL>\\no-such-xn:f",
       {failure("<LOCAL>\\no-such-xn", "no such account")}},
      {"adm:f,%nobody:v",
       "adm:f,%nobody:v",
       {failure("adm", "didn't expect a group"), failure("nobody", "expected a group")}},
      {"%*:f,%%x:d",
       "%%x:d,%*:f",
       {failure("*", "no such account"), failure("%x", "no such account")}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    plattest::LogCapture capture;
    SecurityPrincipalList list;
    list.parse(c.text.c_str(), false);
    EXPECT_STREQ(list.render().get(), c.rendered);
    EXPECT_EQ(capture.lines(checkLog), c.log);
  }
}

TEST(SecurityPrincipalListTest, KeepsTheLocalFormBesideTheSystemId) {
  SecurityPrincipalList list;
  list.parse("<LOCAL>\\root:f,%<LOCAL>\\adm,<LOCAL>\\no-such-xn,*,", false);
  const struct {
    const char* id;
    const char* enteredId;
    const char* displayName;
  } expected[] = {
      {"<LOCAL>\\no-such-xn", nullptr, "<LOCAL>\\no-such-xn"},
      {"root", "<LOCAL>\\root", "<LOCAL>\\root"},
      {"*", nullptr, "All users"},
      {"adm", "<LOCAL>\\adm", "<LOCAL>\\adm"},
  };
  ASSERT_EQ(list.size(), 4);
  for (int i = 0; i < 4; ++i) {
    SCOPED_TRACE(i);
    SecurityPrincipal& principal = list.at(i);
    EXPECT_STREQ(principal.id.get(), expected[i].id);
    EXPECT_STREQ(principal.enteredId.get(), expected[i].enteredId);
    EXPECT_STREQ(principal.getDisplayName().get(), expected[i].displayName);
  }
  EXPECT_STREQ(list.at(2).displayName.get(), "All users");
}

TEST(SecurityPrincipalListTest, BadPermissionTextFailsTheParseAndKeepsWhatCameBefore) {
  for (const char* text : {"alice:f:g", "alice:f , bob:d"}) {
    SecurityPrincipalList list;
    EXPECT_THROW(list.parse(text, false), xnauth::Permissions::ParseException) << text;
  }
  SecurityPrincipalList list;
  list.parse("S-1-5-18:f", false);
  EXPECT_THROW(list.parse("root:f,*:v,%adm:d,x:f:g,S-1-5-18:d", false),
               xnauth::Permissions::ParseException);
  EXPECT_STREQ(list.render().get(), "*:v,root:f,%adm:d");
}

TEST(SecurityPrincipalListTest, DropsEntriesThatFailTheCheckOnlyWhenAsked) {
  const char* text = "root:f,no-such-xn:v,%*:d,*:d";
  SecurityPrincipalList list;
  list.parse(text, true);
  EXPECT_STREQ(list.render().get(), "*:d,root:f");
  list.parse(text, false);
  EXPECT_EQ(list.size(), 4);
}

TEST(SecurityPrincipalListTest, FindsExactIdsOfTheSameKindAndRemoves) {
  SecurityPrincipalList list;
  list.parse("alice:f,%alice:v,alice:d,S-1-5-18:v", false);
  EXPECT_EQ(list.find("alice", false), 0);
  EXPECT_EQ(list.find("alice", true), 3);
  EXPECT_EQ(list.find("S-1-5-18", false), 2);
  EXPECT_EQ(list.find("ALICE", false), -1);
  EXPECT_EQ(list.find("S-1-5-18", true), -1);
  list.removeAt(0);
  EXPECT_STREQ(list.render().get(), "alice:d,S-1-5-18:v,%alice:v");
  list.clear();
  EXPECT_EQ(list.size(), 0);
  EXPECT_DEATH(list.at(0), "index >= 0 && index < \\(int\\)principals_.size\\(\\)");
}

TEST(SecurityPrincipalTest, ConstructorRequiresAnIdThatPassesTheCheck) {
  SecurityPrincipal user("root", xnauth::Permissions("d"), false, "Super User");
  EXPECT_STREQ(user.id.get(), "root");
  EXPECT_STREQ(user.getDisplayName().get(), "Super User");
  plat::DString text("x,");
  user.appendTo(text);
  EXPECT_STREQ(text.get(), "x,root:d");

  EXPECT_STREQ(SecurityPrincipal("<LOCAL>\\adm", {}, true, nullptr).id.get(), "adm");
  for (auto [id, isGroup] : {std::pair{"no-such-xn", false}, {"adm", false}, {"nobody", true}}) {
    SCOPED_TRACE(id);
    EXPECT_EQ(plat::test::errorOf([&] { SecurityPrincipal(id, {}, isGroup, nullptr); }),
              "Invalid security principal");
  }
}

TEST(SecurityPrincipalTest, ReparsingForgetsTheFormerEntry) {
  SecurityPrincipal principal;
  EXPECT_TRUE(principal.parse("<LOCAL>\\root:f", nullptr));
  EXPECT_FALSE(principal.parse("%no-such-xn", nullptr));
  EXPECT_STREQ(principal.id.get(), "no-such-xn");
  EXPECT_TRUE(principal.enteredId.isNull());
  EXPECT_TRUE(principal.isGroup);
  EXPECT_STREQ(principal.permissions.getText(), "");
}

} // namespace
} // namespace sysauth::test
