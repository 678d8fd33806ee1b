// Account look-ups on this machine's own accounts: "root" is a user and a
// group, "adm" only a group and "nobody" only a user.
#include "os/Accounts.h"

#include "plat/StringUtils.h"
#include "plat/tests/ErrorText.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstring>
#include <string>

namespace os::test {
namespace {

std::string upper(std::string text) {
  plat::upperAscii(text.data());
  return text;
}

TEST(AccountsTest, ThisComputerAndThisProcess) {
  char host[256] = {};
  ASSERT_EQ(gethostname(host, sizeof host - 1), 0);
  std::string label(host, std::min<std::size_t>(16, std::strcspn(host, ".")));
  EXPECT_FALSE(label.empty());
  EXPECT_EQ(computerName().get(), label);
  EXPECT_STREQ(sidToString(currentUserSid()).get(), getpwuid(geteuid())->pw_name);
}

TEST(AccountsTest, LooksNamesUpByKindAndFallsBackOnTheOther) {
  std::string host = computerName().get();
  const struct {
    std::string name;
    bool wantGroup, foundGroup;
    const char* id;
  } cases[] = {
      {"root", false, false, "root"},      {"root", true, true, "root"},
      {"adm", true, true, "adm"},          {"adm", false, true, "adm"},
      {"nobody", true, false, "nobody"},   {upper(host) + "\\root", false, false, "root"},
      {host + "\\adm", true, true, "adm"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name + (c.wantGroup ? " as a group" : " as a user"));
    bool isGroup = c.wantGroup;
    Sid sid = sidFromName(c.name.c_str(), nullptr, isGroup);
    EXPECT_EQ(isGroup, c.foundGroup);
    EXPECT_EQ(sid.isGroupAccount(), c.foundGroup);
    EXPECT_STREQ(sidToString(sid).get(), c.id);
  }
  bool isGroup = false;
  EXPECT_STREQ(sidToString(sidFromName("root", upper(host).c_str(), isGroup)).get(), "root");
  for (const char* missing : {"no-such-account-xn", "OTHERHOST-XN\\root", ""})
    EXPECT_EQ(plat::test::errorOf([&] { sidFromName(missing, nullptr, isGroup); }),
              "no such account")
        << missing;
  EXPECT_EQ(plat::test::errorOf([&] { sidFromName("root", "elsewhere-xn", isGroup); }),
            "accounts of 'elsewhere-xn' can't be looked up here");
}

TEST(AccountsTest, AccountsOfIdsBelongToThisComputerOrAreWellKnown) {
  AccountInfo group = accountFromSid(Sid::forAccount("adm", true), nullptr);
  EXPECT_STREQ(group.name.get(), "adm");
  EXPECT_EQ(group.domain.get(), upper(computerName().get()));
  EXPECT_TRUE(group.isGroup);
  EXPECT_FALSE(accountFromSid(Sid::forAccount("root", false), nullptr).isGroup);
  EXPECT_STREQ(accountFromSid(sidFromString("S-1-5-32-545"), nullptr).name.get(), "Users");
  for (const Sid& missing : {sidFromString("S-1-5-21-1-2-3-500"), Sid::forAccount("adm", false)})
    EXPECT_EQ(plat::test::errorOf([&] { accountFromSid(missing, nullptr); }), "no such account");
}

} // namespace
} // namespace os::test
