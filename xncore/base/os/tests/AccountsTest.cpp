// Account look-ups on this machine's own accounts: "root" is a user and a
// group, "adm" only a group and "nobody" only a user.
#include "os/Accounts.h"

#include "plat/StringUtils.h"
#include "plat/tests/ErrorText.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <string>
#include <utility>
#include <vector>

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

TEST(AccountsTest, EnumeratesUsersThenGroupsEachOnceWithFullNames) {
  std::vector<AccountEntry> accounts = enumerateAccounts();
  auto find = [&](const char* name, bool isGroup) -> const AccountEntry* {
    auto found = std::find_if(accounts.begin(), accounts.end(), [&](const AccountEntry& a) {
      return a.name == name && a.isGroup == isGroup;
    });
    return found == accounts.end() ? nullptr : &*found;
  };
  // "list" has the full name "Mailing List Manager", "_apt" none.
  const struct {
    const char* name;
    bool isGroup;
    const char* fullName;
  } expected[] = {
      {"root", false, "root"},
      {"root", true, ""},
      {"adm", true, ""},
      {"_apt", false, ""},
      {"list", false, "Mailing List Manager"},
  };
  for (const auto& e : expected) {
    SCOPED_TRACE(e.name);
    const AccountEntry* account = find(e.name, e.isGroup);
    ASSERT_NE(account, nullptr);
    EXPECT_EQ(account->fullName, e.fullName);
    if (!e.isGroup) {
      EXPECT_EQ(localUserFullName(e.name).get(), account->fullName);
    }
  }
  EXPECT_EQ(find("adm", false), nullptr);
  EXPECT_STREQ(localUserFullName("no-such-account-xn").get(), "");

  std::set<std::pair<std::string, bool>> seen;
  for (const AccountEntry& account : accounts)
    EXPECT_TRUE(seen.emplace(account.name, account.isGroup).second) << account.name;
  EXPECT_TRUE(std::is_partitioned(accounts.begin(), accounts.end(),
                                  [](const AccountEntry& a) { return !a.isGroup; }));
}

} // namespace
} // namespace os::test
