// The text form of SIDs, the same on every platform, and the portable names of
// the well-known ones.
#include "os/Sid.h"

#include "os/Accounts.h"
#include "plat/tests/ErrorText.h"

#include <gtest/gtest.h>

namespace os::test {
namespace {

TEST(SidTest, ParsesAndFormatsTheTextForm) {
  const char* cases[][2] = {
      {"S-1-5-32-544", "S-1-5-32-544"},
      {"S-1-5", "S-1-5"},
      {"S-1-0x5-018", "S-1-5-18"},
      {"S-1-4294967295-4294967295", "S-1-4294967295-4294967295"},
      {"S-1-0xfFFFFFFFFFFF-1", "S-1-0xFFFFFFFFFFFF-1"},
      {"S-1-0x10000000000", "S-1-0x010000000000"},
      {"S-1-5-21-1-2-3-4-5-6-7-8-9-10-11-12-13-14", "S-1-5-21-1-2-3-4-5-6-7-8-9-10-11-12-13-14"},
  };
  for (auto [text, formatted] : cases) {
    SCOPED_TRACE(text);
    std::optional<Sid> sid = parseSid(text);
    ASSERT_TRUE(sid);
    EXPECT_STREQ(sidToString(*sid).get(), formatted);
    EXPECT_TRUE(*parseSid(formatted) == *sid);
  }
  EXPECT_TRUE(wellKnownSid(5, 18) == sidFromString("S-1-5-18"));
  EXPECT_FALSE(wellKnownSid(5, 18) == sidFromString("S-1-5-18-0"));
}

TEST(SidTest, RejectsAnythingElse) {
  const char* cases[] = {
      "S-1",        "S-1-",   "S-2-5-18",  "s-1-5-18",         " S-1-5-18",
      "S-1-5-18 ",  "S-1-5-", "S-1-5--18", "S-1-5-+18",        "S-1-5-1a",
      "S-1-5-0x12", "S-1-0x", "root",      "S-1-5-4294967296", "S-1-4294967296",
  };
  for (const char* text : cases) {
    EXPECT_FALSE(parseSid(text)) << text;
    EXPECT_EQ(plat::test::errorOf([&] { sidFromString(text); }), "bad SID") << text;
  }
  EXPECT_FALSE(parseSid(""));
  EXPECT_FALSE(parseSid("S-1-0x1000000000000"));                   // 49 bits
  EXPECT_FALSE(parseSid("S-1-0-1-2-3-4-5-6-7-8-9-0-1-2-3-4-5-6")); // 16 sub-authorities
}

TEST(SidTest, AccountIdsAreTheirNamesAndNoSids) {
  Sid user = Sid::forAccount("root", false);
  EXPECT_STREQ(sidToString(user).get(), "root");
  EXPECT_TRUE(user == Sid::forAccount("root", false));
  EXPECT_FALSE(user == Sid::forAccount("root", true));
  EXPECT_FALSE(user == wellKnownSid(0, 0));
  EXPECT_STREQ(authorityName(user), "UNKNOWN AUTHORITY");
  EXPECT_FALSE(wellKnownAccount(user));
}

TEST(SidTest, WellKnownSidsHaveNamesAndAuthorities) {
  const char* authorities[] = {
      "NULL SID AUTHORITY", "WORLD SID AUTHORITY", "LOCAL SID AUTHORITY", "CREATOR SID AUTHORITY",
      "UNKNOWN AUTHORITY",  "NT AUTHORITY",        "UNKNOWN AUTHORITY"};
  for (std::uint32_t authority = 0; authority < 7; ++authority)
    EXPECT_STREQ(authorityName(wellKnownSid(authority, 0)), authorities[authority]);

  std::optional<AccountInfo> builtin = wellKnownAccount(sidFromString("S-1-5-32-544"));
  ASSERT_TRUE(builtin);
  EXPECT_STREQ(builtin->name.get(), "Administrators");
  EXPECT_STREQ(builtin->domain.get(), "BUILTIN");
  EXPECT_TRUE(builtin->isGroup);
  EXPECT_STREQ(wellKnownAccount(wellKnownSid(1, 0))->domain.get(), "");
  EXPECT_FALSE(wellKnownAccount(sidFromString("S-1-5-21-1-2-3-500")));
}

} // namespace
} // namespace os::test
