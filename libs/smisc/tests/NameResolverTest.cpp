// Display names of this machine's own accounts: "root" is a user (full name
// "root") and a group, "adm" only a group, "list" a user with a full name and
// "_apt" one without.
#include "os/Accounts.h"
#include "plat/Exception.h"
#include "plat/StringUtils.h"
#include "smisc/NameResolverSystemAuth.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace smisc::test {
namespace {

std::string host() {
  plat::String name = os::computerName();
  plat::upperAscii(name.data());
  return name.get();
}

std::string orNull(const plat::String& text) {
  return text.isNull() ? "(null)" : text.get();
}

TEST(NameResolverTest, NamesAccountsByRoleDomainAndFullName) {
  NameResolverSystemAuth resolver;
  std::string me = NameResolverSystemAuth::accountDisplayName(os::currentUserSid()).get();
  const std::string h = host() + "\\";
  const struct {
    const char* id;
    const char* enteredId;
    bool isGroup;
    std::string shown;
  } cases[] = {
      {"root", nullptr, false, "root (" + h + "root)"},
      {"root", nullptr, true, h + "root"},
      {"adm", nullptr, true, h + "adm"},
      {"list", nullptr, false, "Mailing List Manager (" + h + "list)"},
      {"_apt", nullptr, false, h + "_apt"},
      {"S-1-5-32-544", nullptr, true, "BUILTIN\\Administrators"},
      {"S-1-1-0", nullptr, true, "WORLD SID AUTHORITY\\Everyone"},
      {"", nullptr, false, "Ostrand Server owner [" + me + "]"},
      {"S-1-3-0", nullptr, false, "Logged in user [" + me + "]"},
      {"root", "<LOCAL>\\root", false, "<LOCAL>\\root [resolved as root (" + h + "root)]"},
      {"no-such-xn", "<LOCAL>\\no-such-xn", false, "(null)"},
      {"no-such-xn", nullptr, false, "(null)"},
      {"11111111-2222-3333-4444-555555555555", nullptr, false, "(null)"},
      {"S-1-5-21-1-2-3-500", nullptr, false, "(null)"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.id);
    EXPECT_EQ(orNull(resolver.resolveDisplayName(c.id, c.enteredId, c.isGroup)), c.shown);
  }
  EXPECT_STREQ(resolver.canonicalName(" Fred ", false).get(), " Fred ");
}

TEST(NameResolverTest, CacheAsksOncePerPrincipalAndNotAfterAFailure) {
  struct Counting : DisplayNameCache {
    plat::String canonicalName(const char* name, bool) override { return plat::String(name); }
    plat::String lookUpDisplayName(const char* id, const char* enteredId, bool isGroup) override {
      asked.push_back(std::string(isGroup ? "%" : "") + id + (enteredId ? "/" : ""));
      if (std::string(id) == "boom")
        throw plat::Exception("directory down");
      return std::string(id) == "ghost" ? plat::String() : plat::String(id);
    }
    std::vector<std::string> asked;
  } cache;
  for (int round = 0; round < 2; ++round) {
    EXPECT_STREQ(cache.resolveDisplayName("alice", nullptr, false).get(), "alice");
    EXPECT_STREQ(cache.resolveDisplayName("alice", nullptr, true).get(), "alice");
    EXPECT_STREQ(cache.resolveDisplayName("alice", "", false).get(), "alice");
    EXPECT_TRUE(cache.resolveDisplayName("ghost", nullptr, false).isNull());
    EXPECT_THROW(cache.resolveDisplayName("boom", nullptr, false), plat::Exception);
  }
  using Asked = std::vector<std::string>;
  EXPECT_EQ(cache.asked, (Asked{"alice", "%alice", "alice/", "ghost", "boom", "boom"}));
  cache.clear();
  cache.resolveDisplayName("alice", nullptr, false);
  EXPECT_EQ(cache.asked.back(), "alice");
  EXPECT_EQ(cache.asked.size(), 7u);
}

} // namespace
} // namespace smisc::test
