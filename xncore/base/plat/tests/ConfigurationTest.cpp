// Groups: finding and setting by name, subgroups, aliases, copying between
// groups and comparing them.
#include "plat/Configuration.h"

#include "plat/Assertion.h"
#include "plat/BinaryParameter.h"
#include "plat/BoolParameter.h"
#include "plat/EnglishText.h"
#include "plat/EnumParameter.h"
#include "plat/Exception.h"
#include "plat/IntParameter.h"
#include "plat/ParameterAlias.h"
#include "plat/S64Parameter.h"
#include "plat/StringParameter.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <string>
#include <thread>
#include <vector>

namespace {

std::string text(const plat::String& value) {
  return value.orEmpty();
}

// An alias that never expands.
struct RefusingAlias : plat::ParameterAlias {
  RefusingAlias() : ParameterAlias("Count") {}
  bool expand(const char*, const char*, plat::ParamValueMap&) const override { return false; }
};

// A root with one subgroup, as the program's configuration has.
class Groups : public testing::Test {
protected:
  Groups() { root.addSubgroup(&child); }

  plat::Configuration root{"Root", nullptr};
  plat::Configuration child{"Child", nullptr};
  plat::BoolParameter flag{"Flag", "A flag", false, false, &root};
  plat::IntParameter count{"Count", "How many", 1, false, &root, 0, 10};
  plat::StringParameter name{"Name", "Who", "nobody", false, &child};
  plat::S64Parameter big{"Big", "Large", 5, false, &child};
};

TEST(GlobalGroup, IsOneNamedGroupFromAnyThread) {
  plat::Configuration* seen[4] = {};
  std::vector<std::thread> threads;
  for (auto& slot : seen)
    threads.emplace_back([&slot] { slot = &plat::Configuration::global(); });
  for (auto& thread : threads)
    thread.join();
  for (plat::Configuration* group : seen)
    EXPECT_EQ(group, &plat::Configuration::global());
  EXPECT_STREQ(plat::Configuration::global().name(), "Global");
  EXPECT_STREQ(plat::englishText(plat::Configuration::global().titleKey()), "Global parameters");
}

TEST_F(Groups, FindParamIgnoresCaseAndRecursesOnRequest) {
  EXPECT_EQ(root.findParam("FLAG"), &flag);
  EXPECT_EQ(root.findParam("name"), &name);
  EXPECT_EQ(root.findParam("name", false), nullptr);
  EXPECT_EQ(root.findParam("missing"), nullptr);
  EXPECT_EQ(root.getParam("count"), &count);
  try {
    root.getParam("Missing");
    FAIL() << "no exception";
  } catch (const plat::Exception& failure) {
    EXPECT_STREQ(failure.what(), "Parameter Missing not found");
  }
}

TEST_F(Groups, TypedGettersCheckTheType) {
  count.setFromString("4", 10);
  name.setFromString("me", 10);
  EXPECT_EQ(root.getInt("Count"), 4);
  EXPECT_FALSE(root.getBool("flag"));
  EXPECT_EQ(text(root.getString("NAME")), "me");
  EXPECT_EQ(root.getS64("big"), 5);
  try {
    root.getInt("Flag");
    FAIL() << "no exception";
  } catch (const plat::AssertionFail& failure) {
    EXPECT_STREQ(failure.expression(), "p");
  }
  EXPECT_THROW(root.getString("Big"), plat::AssertionFail);
  EXPECT_THROW(root.getEnum("Count"), plat::AssertionFail);
  EXPECT_TRUE(root.getBool("Count", true));
  EXPECT_TRUE(root.getBool("Missing", true));
  EXPECT_FALSE(root.getBool("Flag", true));
}

TEST_F(Groups, SetParamReachesSubgroupsAndReportsTheOutcome) {
  EXPECT_TRUE(root.setParam("name", "someone", 10));
  EXPECT_EQ(text(name.getValueString()), "someone");
  EXPECT_FALSE(root.setParam("count", "11", 10));
  EXPECT_FALSE(root.setParam("unknown", "1", 10));
  EXPECT_FALSE(root.setParam(nullptr, "1", 10));
  EXPECT_EQ(name.getPriority(), 10);
}

TEST_F(Groups, OwnParameterHidesSubgroupsOfTheSameName) {
  plat::IntParameter shadow("count", "Shadow", 0, false, &child);
  EXPECT_FALSE(root.setParam("COUNT", "20", 10)); // the root's own refuses; no fallback
  EXPECT_EQ(shadow.getPriority(), 0);
  EXPECT_TRUE(root.setParam("COUNT", "2", 10));
  EXPECT_EQ(static_cast<int>(count), 2);
  EXPECT_EQ(shadow.getPriority(), 0);
}

TEST_F(Groups, AliasesSetTheirTargets) {
  plat::ParameterAlias old("OldCount", count, &root);
  plat::ParameterAlias both("Count", "Name");
  root.addAlias("both", &both);

  EXPECT_TRUE(root.setParam("oldcount", "7", 10));
  EXPECT_EQ(static_cast<int>(count), 7);
  EXPECT_TRUE(root.setParam("BOTH", "9", 10));
  EXPECT_EQ(static_cast<int>(count), 9);
  EXPECT_EQ(text(name.getValueString()), "9");
  // True when any target takes the value.
  EXPECT_TRUE(root.setParam("Both", "x", 10));
  EXPECT_EQ(text(name.getValueString()), "x");
  EXPECT_EQ(static_cast<int>(count), 9);
  EXPECT_FALSE(root.setParam("OldCount", "x", 10));
}

TEST_F(Groups, AliasExpansionOutcomes) {
  RefusingAlias refusing;
  plat::ParameterAlias empty(nullptr);
  root.addAlias("Refusing", &refusing);
  root.addAlias("Empty", &empty);
  EXPECT_FALSE(root.setParam("Refusing", "3", 10));
  EXPECT_TRUE(root.setParam("Empty", "3", 10));
  EXPECT_EQ(count.getPriority(), 0);
}

TEST_F(Groups, AssignClonesWhatIsMissingAndSyncsTheRest) {
  plat::ParameterAlias old("OldFlag", flag, &root);
  count.setFromString("3", 30);
  name.setFromString("policy", 30);
  plat::Configuration copy("Copy", nullptr);
  plat::IntParameter existing("COUNT", "Mine", 8, false, &copy, 0, 10);
  existing.setFromString("6", 10);

  copy.assign(root);
  EXPECT_EQ(copy.findParam("count"), &existing);
  EXPECT_EQ(existing.getAllValues(), count.getAllValues());
  plat::ConfigParameter* cloned = copy.findParam("Name", false);
  ASSERT_NE(cloned, nullptr);
  EXPECT_NE(cloned, &name);
  EXPECT_EQ(cloned->getAllValues(), name.getAllValues());
  EXPECT_TRUE(copy.setParam("oldflag", "1", 10));
  EXPECT_TRUE(copy.getBool("Flag"));
  EXPECT_FALSE(flag);
  EXPECT_FALSE(copy.sameValues(root));

  plat::Configuration constructed(root);
  EXPECT_STREQ(constructed.name(), "Root");
  EXPECT_TRUE(constructed.sameValues(root));
  EXPECT_TRUE(root.sameValues(constructed));
}

TEST_F(Groups, CopyValuesCanSkipMissingAndSubgroups) {
  count.setFromString("3", 10);
  name.setFromString("n", 10);
  plat::Configuration target("Target", nullptr);
  plat::IntParameter targetCount("Count", "Mine", 1, false, &target, 0, 10);

  target.copyValues(root, false, false);
  EXPECT_EQ(static_cast<int>(targetCount), 3);
  EXPECT_EQ(target.findParam("Flag"), nullptr);
  EXPECT_EQ(target.findParam("Name"), nullptr);

  target.copyValues(root, true, false);
  EXPECT_NE(target.findParam("Flag"), nullptr);
  EXPECT_EQ(target.findParam("Name"), nullptr);

  target.copyValues(root, true, true);
  ASSERT_NE(target.findParam("Name"), nullptr);
  EXPECT_EQ(text(target.getString("Name")), "n");
}

TEST_F(Groups, AddedParametersAreOwnedWithTheirOwnTexts) {
  char addedName[] = "Added";
  char description[] = "Made at run time";
  const char* const choices[] = {"a", "b", nullptr};
  plat::IntParameter* added = root.addInt(addedName, description, 5, true, 0, 9, "x,y");
  plat::EnumParameter* choice = root.addEnum("Choice", "Pick", "b", choices);
  plat::BinaryParameter* blob = root.addBinary("Blob", plat::DescKey{"k"}, {});
  plat::BoolParameter* on = root.addBool("On", "Switch", true);
  plat::S64Parameter* wide = root.addS64("Wide", "Wide", -1);
  plat::StringParameter* words = root.addString("Words", "Words", "w");
  std::strcpy(addedName, "XXXXX");
  std::strcpy(description, "XXXXXXXXXXXXXXXX");

  EXPECT_EQ(root.findParam("added"), added);
  EXPECT_STREQ(added->name(), "Added");
  EXPECT_STREQ(added->getDescription(), "Made at run time");
  EXPECT_TRUE(added->ownsText());
  EXPECT_TRUE(added->hasTag("y"));
  EXPECT_EQ(added->max(), 9);
  EXPECT_EQ(text(choice->getValueString()), "b");
  EXPECT_STREQ(blob->locDesc(), "k");
  EXPECT_TRUE(*on);
  EXPECT_EQ(wide->getS64(), -1);
  EXPECT_EQ(text(words->getValueString()), "w");
}

TEST_F(Groups, SubgroupsAreAddedOnceAndRemoved) {
  root.addSubgroup(&child);
  EXPECT_EQ(root.subgroups().size(), 1u);
  root.addSubgroup(&child, false);
  EXPECT_TRUE(root.subgroups().empty());
  EXPECT_EQ(root.findParam("Name"), nullptr);
}

TEST_F(Groups, RemoveAllParamsEmptiesTheGroup) {
  root.addBool("Extra", "Owned", false);
  root.removeAllParams();
  EXPECT_EQ(root.firstParam(), nullptr);
  EXPECT_EQ(root.findParam("Extra"), nullptr);
  EXPECT_EQ(root.findParam("Flag"), nullptr);
  EXPECT_EQ(flag.group(), nullptr);
  EXPECT_EQ(root.findParam("Name"), &name);
}

TEST_F(Groups, ValuesAtOnePriority) {
  count.setFromString("4", 10);
  name.setFromString("n", 10);
  name.setFromString("p", 30);
  plat::ParamValueMap atTen;
  root.getValuesAt(10, atTen);
  EXPECT_EQ(atTen, (plat::ParamValueMap{{plat::String("Count"), plat::String("4")},
                                        {plat::String("Name"), plat::String("n")}}));
  plat::ParamValueMap atZero;
  root.getValuesAt(0, atZero);
  EXPECT_EQ(atZero.size(), 4u);
  EXPECT_EQ(text(atZero[plat::String("BIG")]), "int64:0000000000000005");
}

TEST_F(Groups, ComparingGroups) {
  plat::Configuration other("Other", nullptr);
  plat::BoolParameter otherFlag("flag", "A flag", false, false, &other);
  plat::IntParameter otherCount("Count", "How many", 1, false, &other, 0, 10);
  plat::StringParameter otherName("Name", "Who", "nobody", false, &other);
  plat::S64Parameter otherBig("Big", "Large", 5, false, &other);
  plat::StringParameter onlyThere("Extra", "Only in other", "", false, &other);

  EXPECT_TRUE(root.sameValues(other));
  EXPECT_FALSE(other.sameValues(root)); // "Extra" is missing from root
  EXPECT_EQ(text(root.differentNames(other)), "");

  otherCount.setFromString("2", 30);
  otherName.setFromString("x", 10);
  EXPECT_FALSE(root.sameValues(other));
  EXPECT_EQ(text(root.differentNames(other)), "Count,Name");
  EXPECT_EQ(text(other.differentNames(root)), "Name,Count");

  plat::Configuration target("Target", nullptr);
  plat::IntParameter targetCount("count", "How many", 1, false, &target, 0, 10);
  plat::StringParameter targetName("name", "Who", "", false, &target);
  other.applyDifferences(target, root);
  EXPECT_EQ(targetCount.getValueTextAt(30), plat::String("2"));
  EXPECT_EQ(targetName.getValueTextAt(10), plat::String("x"));
  EXPECT_EQ(targetCount.getPriority(), 30);
}

class FakeStore : public plat::Configuration::AliasStore {
public:
  bool get(const char* name, plat::String& value) override {
    auto entry = values.find(name);
    if (entry == values.end())
      return false;
    value = plat::String(entry->second.c_str());
    return true;
  }
  void set(const char* name, const char* value) override { values[name] = value; }
  void remove(const char* name) override { values.erase(name); }

  std::map<std::string, std::string> values;
};

TEST_F(Groups, MigrateAliasesRewritesRetiredNames) {
  plat::ParameterAlias oldCount("OldCount", count, &root);
  plat::ParameterAlias oldName("OldName", name, &child);
  plat::ParameterAlias oldFlag("OldFlag", flag, &root);
  RefusingAlias refusing;
  root.addAlias("Broken", &refusing);

  FakeStore store;
  store.values = {{"OldCount", "4"}, {"OldName", "n"}, {"OldFlag", "1"},
                  {"Flag", "0"},     {"Broken", "2"},  {"Other", "x"}};
  root.migrateAliases(store);

  std::map<std::string, std::string> expected{
      {"Count", "4"}, {"Name", "n"}, {"Flag", "0"}, {"Other", "x"}};
  EXPECT_EQ(store.values, expected);
}

TEST(BadUtf8Parameter, SettingItMakesBadUtf8Fatal) {
  plat::Configuration& global = plat::Configuration::global();
  EXPECT_FALSE(plat::badUtf8Asserts());
  EXPECT_EXIT(
      {
        global.setParam("_badutf8assert", "on", 10);
        plat::BadUtf8 failure("Broken text");
      },
      testing::ExitedWithCode(1), "Assertion '!badUtf8Assert' failed at .*: Broken text");
  EXPECT_TRUE(global.setParam("_BadUtf8Assert", "1", 10));
  EXPECT_TRUE(plat::badUtf8Asserts());
  global.getParam("_BadUtf8Assert")->unset(10, true);
  EXPECT_FALSE(plat::badUtf8Asserts());
}

} // namespace
