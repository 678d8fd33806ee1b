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
  plattest::LogCapture capture;
  SecurityPrincipalList list;
  list.parse("<LOCAL>\\root:f,%<LOCAL>\\adm,<LOCAL>\\no-such-xn:v,*,", false);
  EXPECT_STREQ(list.render().get(), "<LOCAL>\\no-such-xn:v,<LOCAL>\\root:f,*:,%<LOCAL>\\adm:");
  EXPECT_EQ(capture.lines(checkLog), Lines{failure("<LOCAL>\\no-such-xn", "no such account")});
  // id, entered id, name shown
  const char* expected[][3] = {{"<LOCAL>\\no-such-xn", nullptr, "<LOCAL>\\no-such-xn"},
                               {"root", "<LOCAL>\\root", "<LOCAL>\\root"},
                               {"*", nullptr, "All users"},
                               {"adm", "<LOCAL>\\adm", "<LOCAL>\\adm"}};
  ASSERT_EQ(list.size(), 4);
  for (int i = 0; i < 4; ++i) {
    EXPECT_STREQ(list.at(i).id.get(), expected[i][0]);
    EXPECT_STREQ(list.at(i).enteredId.get(), expected[i][1]);
    EXPECT_STREQ(list.at(i).getDisplayName().get(), expected[i][2]);
  }
}

TEST(SecurityPrincipalListTest, BadPermissionTextStopsTheParseAndFailedChecksCanBeDropped) {
  for (const char* text : {"alice:f:g", "alice:f , bob:d"}) {
    SecurityPrincipalList list;
    EXPECT_THROW(list.parse(text, false), xnauth::Permissions::ParseException) << text;
  }
  SecurityPrincipalList list;
  list.parse("S-1-5-18:f", false);
  EXPECT_THROW(list.parse("root:f,*:v,%adm:d,x:f:g,S-1-5-18:d", false),
               xnauth::Permissions::ParseException);
  EXPECT_STREQ(list.render().get(), "*:v,root:f,%adm:d");

  list.parse("root:f,no-such-xn:v,%*:d,*:d", true);
  EXPECT_STREQ(list.render().get(), "*:d,root:f");
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
  EXPECT_DEATH(list.at(0), "index >=0 && index < \\(int\\)principals.size\\(\\)");
}

TEST(SecurityPrincipalTest, ConstructorChecksTheIdAndParseStartsAfresh) {
  SecurityPrincipal user("<LOCAL>\\root", xnauth::Permissions("d"), false, "Super User");
  EXPECT_STREQ(user.id.get(), "root");
  EXPECT_STREQ(user.getDisplayName().get(), "Super User");
  plat::DString text("x,");
  user.appendTo(text);
  EXPECT_STREQ(text.get(), "x,<LOCAL>\\root:d");

  for (auto [id, isGroup] : {std::pair{"no-such-xn", false}, {"adm", false}, {"nobody", true}}) {
    SCOPED_TRACE(id);
    EXPECT_EQ(plat::test::errorOf([&] { SecurityPrincipal(id, {}, isGroup, nullptr); }),
              "Invalid security principal");
  }

  // Parsing again forgets the former entry, its local form included.
  EXPECT_FALSE(user.parse("%no-such-xn", nullptr));
  EXPECT_STREQ(user.id.get(), "no-such-xn");
  EXPECT_TRUE(user.enteredId.isNull() && user.displayName.isNull() && user.isGroup);
  EXPECT_STREQ(user.permissions.getText(), "");
}

TEST(SecurityPrincipalTest, ValidateSaysWhyAnIdWasTurnedDown) {
  using Rejection = SecurityPrincipal::Rejection;
  const struct {
    const char* id;
    bool isGroup;
    Rejection rejection;
  } cases[] = {
      {"*", false, Rejection::None},
      {"root", true, Rejection::None},
      {"<LOCAL>\\adm", true, Rejection::None},
      {"no-such-xn", false, Rejection::NoSuchAccount},
      {"*", true, Rejection::NoSuchAccount},
      {"nobody", true, Rejection::ExpectedGroup},
      {"adm", false, Rejection::UnexpectedGroup},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.id);
    plattest::LogCapture capture;
    SecurityPrincipal principal;
    principal.id = plat::String(c.id);
    principal.isGroup = c.isGroup;
    Rejection rejection = Rejection::None;
    EXPECT_EQ(principal.validate(nullptr, &rejection), c.rejection == Rejection::None);
    EXPECT_EQ(rejection, c.rejection);
    EXPECT_EQ(capture.lines(checkLog).size(), c.rejection == Rejection::None ? 0u : 1u);
  }
}

} // namespace
} // namespace sysauth::test
