// The text form of SIDs, the same on every platform, and the portable names of
// the well-known ones.
#include "os/Sid.h"

#include "os/Accounts.h"
#include "plat/tests/ErrorText.h"

#include <gtest/gtest.h>

#include <string>

namespace os::test {
namespace {

TEST(SidTest, ParsesAndFormatsTheTextForm) {
  const struct {
    const char* text;
    const char* formatted;
  } cases[] = {
      {"S-1-5-32-544", "S-1-5-32-544"},
      {"S-1-0-0", "S-1-0-0"},
      {"S-1-5", "S-1-5"},
      {"S-1-5-018", "S-1-5-18"},
      {"S-1-0x5-18", "S-1-5-18"},
      {"S-1-4294967295-4294967295", "S-1-4294967295-4294967295"},
      {"S-1-0xfFFFFFFFFFFF-1", "S-1-0xFFFFFFFFFFFF-1"},
      {"S-1-0x10000000000", "S-1-0x010000000000"},
      {"S-1-5-21-1-2-3-4-5-6-7-8-9-10-11-12-13-14", "S-1-5-21-1-2-3-4-5-6-7-8-9-10-11-12-13-14"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    std::optional<Sid> sid = parseSid(c.text);
    ASSERT_TRUE(sid);
    EXPECT_STREQ(sidToString(*sid).get(), c.formatted);
    EXPECT_TRUE(*parseSid(c.formatted) == *sid);
  }
}

TEST(SidTest, RejectsAnythingElse) {
  const char* cases[] = {
      "",
      "S-1",
      "S-1-",
      "S-2-5-18",
      "s-1-5-18",
      " S-1-5-18",
      "S-1-5-18 ",
      "S-1-5-",
      "S-1-5--18",
      "S-1-5-+18",
      "S-1--5",
      "S-1-5-0x12",
      "S-1-5-1a",
      "S-1-0x",
      "S-1-4294967296",
      "S-1-5-4294967296",
      "S-1-0x1000000000000",
      "S-1-5-21-1-2-3-4-5-6-7-8-9-10-11-12-13-14-15",
      "root",
  };
  for (const char* text : cases) {
    SCOPED_TRACE(text);
    EXPECT_FALSE(parseSid(text));
    EXPECT_EQ(plat::test::errorOf([&] { sidFromString(text); }), "bad SID");
  }
  EXPECT_FALSE(parseSid(nullptr));
}

TEST(SidTest, AccountIdsAreTheirNamesAndDifferFromSids) {
  Sid user = Sid::forAccount("root", false);
  EXPECT_STREQ(sidToString(user).get(), "root");
  EXPECT_TRUE(user == Sid::forAccount("root", false));
  EXPECT_FALSE(user == Sid::forAccount("root", true));
  EXPECT_FALSE(user == Sid::forAccount("roots", false));
  EXPECT_FALSE(user == wellKnownSid(0, 0));
  EXPECT_STREQ(authorityName(user), "UNKNOWN AUTHORITY");
  EXPECT_FALSE(wellKnownAccount(user));
}

TEST(SidTest, WellKnownSidsAndTheirAuthorities) {
  EXPECT_TRUE(wellKnownSid(5, 18) == sidFromString("S-1-5-18"));
  EXPECT_FALSE(wellKnownSid(5, 18) == sidFromString("S-1-5-18-0"));
  const char* authorities[] = {
      "NULL SID AUTHORITY", "WORLD SID AUTHORITY", "LOCAL SID AUTHORITY", "CREATOR SID AUTHORITY",
      "UNKNOWN AUTHORITY",  "NT AUTHORITY",        "UNKNOWN AUTHORITY"};
  for (std::uint32_t authority = 0; authority < 7; ++authority)
    EXPECT_STREQ(authorityName(wellKnownSid(authority, 0)), authorities[authority]);

  const struct {
    const char* sid;
    const char* name;
    const char* domain;
  } named[] = {
      {"S-1-1-0", "Everyone", ""},
      {"S-1-3-0", "CREATOR OWNER", ""},
      {"S-1-5-18", "SYSTEM", "NT AUTHORITY"},
      {"S-1-5-32-544", "Administrators", "BUILTIN"},
  };
  for (const auto& c : named) {
    SCOPED_TRACE(c.sid);
    std::optional<AccountInfo> account = wellKnownAccount(sidFromString(c.sid));
    ASSERT_TRUE(account);
    EXPECT_STREQ(account->name.get(), c.name);
    EXPECT_STREQ(account->domain.get(), c.domain);
    EXPECT_TRUE(account->isGroup);
  }
  EXPECT_FALSE(wellKnownAccount(sidFromString("S-1-5-21-1-2-3-500")));
}

} // namespace
} // namespace os::test
