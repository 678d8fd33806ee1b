// The order of an access list under a resolver of display names: checked by
// hand on the rules, and against a plain stable sort on random lists. The ids
// are SID strings, which need no account look-up.
#include "plat/Exception.h"
#include "sysauth/SecurityPrincipalList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace sysauth::test {
namespace {

// Names by id; "!" makes the resolver throw, an id it doesn't know gets null.
class FakeResolver : public SecurityPrincipal::NameResolver {
public:
  plat::String resolveDisplayName(const char* id, const char*, bool) override {
    ++calls;
    auto found = names.find(id);
    if (found == names.end())
      return plat::String();
    if (found->second == "!")
      throw plat::Exception("directory unavailable");
    return plat::String(found->second.c_str());
  }
  plat::String canonicalName(const char* name, bool) override { return plat::String(name); }

  std::map<std::string, std::string> names;
  int calls = 0;
};

class PrincipalOrderTest : public ::testing::Test {
protected:
  PrincipalOrderTest() { nameResolver = &resolver; }
  ~PrincipalOrderTest() override { nameResolver = nullptr; }

  FakeResolver resolver;
};

TEST_F(PrincipalOrderTest, UsersComeFirstThenGroupsEachByTheNameShown) {
  resolver.names = {{"S-1-5-21-1", "bob"},  {"S-1-5-21-2", "Alice"}, {"S-1-5-21-3", "aaron"},
                    {"S-1-5-21-4", "_x"},   {"S-1-5-21-5", "!"},     {"S-1-5-21-6", ""},
                    {"S-1-5-21-7", "alice"}};
  SecurityPrincipalList list;
  list.parse("S-1-5-21-1:a,%S-1-5-21-3:b,S-1-5-21-7:c,S-1-5-21-2:d,S-1-5-21-4:e,S-1-5-21-5:f,"
             "S-1-5-21-6:g",
             false);
  // '_' sorts before letters because letters fold to lower case; equal names
  // keep the order they came in; without a name the id is what counts.
  EXPECT_STREQ(list.render().get(), "S-1-5-21-4:e,S-1-5-21-7:c,S-1-5-21-2:d,S-1-5-21-1:a,"
                                    "S-1-5-21-5:f,S-1-5-21-6:g,%S-1-5-21-3:b");

  int calls = resolver.calls;
  EXPECT_STREQ(list.at(3).getDisplayName().get(), "bob");
  EXPECT_EQ(resolver.calls, calls); // kept
  EXPECT_STREQ(list.at(4).getDisplayName().get(), "S-1-5-21-5");
  EXPECT_EQ(resolver.calls, calls + 1); // a failure is asked again

  auto add = [&](const char* id, bool isGroup, const char* name) {
    return list.add(std::make_unique<SecurityPrincipal>(id, xnauth::Permissions(), isGroup, name));
  };
  resolver.names["S-1-5-21-8"] = "ALICE";
  EXPECT_EQ(add("S-1-5-21-8", false, nullptr), 3); // behind its equals
  EXPECT_EQ(add("S-1-5-21-9", true, "zed"), 8);
  EXPECT_EQ(add("S-1-5-21-10", false, "~"), 7);
  // A name found only now leaves the list out of order; an added entry still
  // goes in front of the first entry that it sorts before.
  resolver.names["S-1-5-21-5"] = "a0";
  EXPECT_EQ(add("S-1-5-21-11", false, "b"), 4);
}

TEST_F(PrincipalOrderTest, MatchesAStableSortOfRandomLists) {
  // An entry as "[%]id" and the name shown folded to lower case, for the reference.
  using Entry = std::pair<std::string, std::string>;
  auto ruleBefore = [](const Entry& a, const Entry& b) {
    bool groupA = a.first[0] == '%', groupB = b.first[0] == '%';
    return groupA != groupB ? groupB : a.second < b.second;
  };
  auto entriesOf = [](SecurityPrincipalList& list) {
    std::vector<std::string> entries;
    for (int i = 0; i < list.size(); ++i)
      entries.push_back((list.at(i).isGroup ? "%" : "") + std::string(list.at(i).id.get()));
    return entries;
  };

  std::mt19937 random(20240611);
  const std::string alphabet = "aAbB_~"; // '_' lies between the upper and the lower case
  for (int round = 0; round < 30; ++round) {
    std::vector<Entry> entries(random() % 150);
    std::string text;
    for (std::size_t i = 0; i < entries.size(); ++i) {
      std::string id = "S-1-5-21-" + std::to_string(round) + "-" + std::to_string(i);
      std::string name;
      for (unsigned length = random() % 3; length > 0; --length)
        name += alphabet[random() % alphabet.size()];
      resolver.names[id] = name;
      std::string shown = name.empty() ? id : name;
      std::transform(shown.begin(), shown.end(), shown.begin(), ::tolower);
      entries[i] = {(random() % 2 ? "%" : "") + id, shown};
      text += entries[i].first + ":v,";
    }
    std::vector<Entry> sorted = entries;
    std::stable_sort(sorted.begin(), sorted.end(), ruleBefore);
    std::vector<std::string> expected;
    for (const Entry& entry : sorted)
      expected.push_back(entry.first);

    SecurityPrincipalList parsed, added;
    parsed.parse(text.c_str(), false);
    EXPECT_EQ(entriesOf(parsed), expected) << "round " << round;
    for (const Entry& entry : entries) {
      bool isGroup = entry.first[0] == '%';
      added.add(std::make_unique<SecurityPrincipal>(entry.first.c_str() + isGroup,
                                                    xnauth::Permissions(), isGroup, nullptr));
    }
    EXPECT_EQ(entriesOf(added), expected) << "round " << round;
  }
}

} // namespace
} // namespace sysauth::test
