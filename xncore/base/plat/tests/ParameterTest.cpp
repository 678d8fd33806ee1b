// Parameters and groups: the text forms of each type, values by priority and
// their callbacks, moving values between parameters and groups, and aliases.
#include "plat/Assertion.h"
#include "plat/BinaryParameter.h"
#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/EnumParameter.h"
#include "plat/Exception.h"
#include "plat/IntParameter.h"
#include "plat/LogParameters.h"
#include "plat/ParameterAlias.h"
#include "plat/S64Parameter.h"
#include "plat/StringParameter.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace {

std::string str(const plat::String& text) {
  return text.isNull() ? "<null>" : text.get();
}

const char* const levels[] = {"Low", "Medium", "High", nullptr};

// A text and the value's text after setting it, or null when it is refused.
struct Form {
  const char* text;
  const char* after;
};

// Sets each text on a new parameter of `type`, whose default is made known:
// bool false, int 0 in -5..100, enum Medium, string "start", s64 7, binary 01.
void checkForms(const std::string& type, std::span<const Form> forms) {
  for (const Form& form : forms) {
    SCOPED_TRACE(type + " " + (form.text ? form.text : "<null>"));
    plat::Configuration group("Test", nullptr);
    const unsigned char one[] = {1};
    plat::ConfigParameter* parameter =
        type == "bool"     ? group.addBool("P", "d", false)
        : type == "int"    ? group.addInt("P", "d", 0, false, -5, 100)
        : type == "enum"   ? group.addEnum("P", "d", "medium", levels)
        : type == "string" ? group.addString("P", "d", "start")
        : type == "s64"    ? static_cast<plat::ConfigParameter*>(group.addS64("P", "d", 7))
                           : group.addBinary("P", "d", plat::MBuf<unsigned char>(one, 1));
    std::string initial = str(parameter->getValueString());
    EXPECT_EQ(parameter->typeName(), type);
    EXPECT_EQ(parameter->setFromString(form.text, 10), form.after != nullptr);
    EXPECT_EQ(str(parameter->getValueString()), form.after ? form.after : initial);
    EXPECT_EQ(parameter->hasValueAt(10), form.after != nullptr);
  }
}

TEST(ParameterText, FormsOfEachType) {
  const Form bools[] = {
      {nullptr, "1"},    {"", "1"},        {"1", "1"},      {"on", "1"},
      {"ON", "1"},       {"True", "1"},    {"yes", "1"},    {"0", "0"},
      {"off", "0"},      {"FALSE", "0"},   {"No", "0"},     {"2", nullptr},
      {"yess", nullptr}, {" on", nullptr}, {"-1", nullptr}, {"t", nullptr},
  };
  const Form ints[] = {
      {"42", "42"},       {"0x1f", "31"},           {"0X10", "16"},  {"017", "15"},
      {"-5", "-5"},       {"100", "100"},           {"-6", nullptr}, {"101", nullptr},
      {"12abc", nullptr}, {"0x", nullptr},          {"", nullptr},   {nullptr, nullptr},
      {"4 ", nullptr},    {"99999999999", nullptr},
  };
  const Form enums[] = {
      {"High", "High"}, {"high", "High"}, {"LOW", "Low"},     {"none", nullptr},
      {"1", nullptr},   {"", nullptr},    {nullptr, nullptr},
  };
  const Form strings[] = {
      {"", ""},
      {"gr\xC3\xBC\xC3\x9F", "gr\xC3\xBC\xC3\x9F"},
      {nullptr, nullptr},
  };
  const Form s64s[] = {
      {"int64:0123456789abcdef", "int64:0123456789abcdef"},
      {"efcdab8967452301", "int64:0123456789abcdef"},
      {"int64:FFFFFFFFFFFFFFFE", "int64:FFFFFFFFFFFFFFFE"},
      {"0000000000000001", "int64:0100000000000000"},
      {"0100000000000000", "int64:0000000000000001"},
  };
  const Form badS64s[] = {
      {"int64:123", nullptr},
      {"int64:0123456789abcdeg", nullptr},
      {"Int64:0123456789abcdef", nullptr},
      {"000000000000000", nullptr},
      {"000000000000000001", nullptr},
      {nullptr, nullptr},
  };
  const Form binaries[] = {
      {"00ff10", "00ff10"}, {"ABCD", "abcd"}, {"", ""},
      {"abc", nullptr},     {"zz", nullptr},  {nullptr, nullptr},
  };
  checkForms("bool", bools);
  checkForms("int", ints);
  checkForms("enum", enums);
  checkForms("string", strings);
  checkForms("s64", s64s);
  checkForms("s64", badS64s);
  checkForms("binary", binaries);
}

TEST(ParameterText, RefusalsAndTypedAccess) {
  plat::Configuration group("Test", nullptr);
  plat::StringParameter* text = group.addString("Text", "d", "start");
  try {
    text->setFromString("bad \xFF byte", 10);
    ADD_FAILURE() << "no exception";
  } catch (const plat::BadUtf8& failure) {
    EXPECT_STREQ(failure.what(), "Bad UTF-8 string for Text");
    EXPECT_STREQ(failure.type(), "BadUtf8");
  }
  EXPECT_EQ(str(text->getValueString()), "start");
  EXPECT_FALSE(plat::logKeepDaysParameter.setFromString("-1", 10));
  EXPECT_EQ(static_cast<int>(plat::logKeepDaysParameter), 30);

  plat::IntParameter* count = group.addInt("Count", "d", 0, false, 1, 3);
  EXPECT_FALSE(count->setInt(4, 10));
  EXPECT_TRUE(count->setInt(3, 10));
  EXPECT_FALSE(group.addEnum("Level", "d", "HIGH", levels)->setInt(3, 10));
  plat::S64Parameter* big = group.addS64("Big", "d", 0);
  EXPECT_TRUE(big->setFromString("0000000000000001", 10));
  EXPECT_EQ(big->getS64(), 0x0100000000000000LL);
  EXPECT_TRUE(big->setS64(INT64_MIN, 10));
  EXPECT_EQ(str(big->getValueString()), "int64:8000000000000000");
  for (bool secure : {false, true}) { // a binary value is as secure as its default
    plat::BinaryParameter* blob =
        group.addBinary(secure ? "Secret" : "Open", "d", plat::MBuf<unsigned char>(0, secure));
    ASSERT_TRUE(blob->setFromString("0102", 10));
    plat::MBuf<unsigned char> out;
    blob->getBinary(out);
    EXPECT_EQ(out.isSecure(), secure);
    EXPECT_EQ(out.length(), 2);
  }
}

struct Recorder : plat::ParameterChangedCallback {
  void paramChanged(plat::ConfigParameter* changed, int priority) override {
    parameter = changed;
    seen.push_back(priority);
  }
  /// The priorities notified since the last call.
  std::vector<int> take() { return std::exchange(seen, {}); }

  plat::ConfigParameter* parameter = nullptr;
  std::vector<int> seen;
};

class Priorities : public testing::Test {
protected:
  Priorities() { log.addCallback(&recorder); }

  std::string current() const { return log.getValueString().get(); }

  plat::Configuration group{"Test", nullptr};
  plat::StringParameter log{"Log", "Where messages go", "", false, &group};
  Recorder recorder;
};

TEST_F(Priorities, PolicyHidesPreferenceUntilWithdrawn) {
  ASSERT_TRUE(log.setFromString("policy", 30));
  recorder.take();
  EXPECT_TRUE(log.setFromString("pref", 10)); // beneath the policy, and still notified
  EXPECT_EQ(recorder.take(), std::vector<int>{10});
  EXPECT_EQ(current(), "policy");
  EXPECT_EQ(log.getPriority(), 30);
  EXPECT_EQ(str(log.getValueTextAt(10)), "pref");
  EXPECT_EQ(str(log.getValueTextAt(20)), "<null>");
  log.unset(30, true);
  EXPECT_EQ(current(), "pref");
  EXPECT_EQ(log.getPriority(), 10);
  EXPECT_EQ(recorder.take(), std::vector<int>{30});
  EXPECT_EQ(recorder.parameter, &log);
}

TEST_F(Priorities, CallbacksRunOncePerChange) {
  log.setFromString("x", 10);
  log.setFromString("x", 10);
  log.setFromString("y", 10);
  EXPECT_EQ(recorder.take(), (std::vector<int>{10, 10}));
  log.unset(0, true);   // the default stays
  log.unset(20, true);  // nothing there
  log.unset(10, false); // silently
  EXPECT_TRUE(recorder.take().empty());
  EXPECT_TRUE(log.hasValueAt(0));
  log.notifyIfDefault();
  EXPECT_EQ(recorder.take(), std::vector<int>{0});
}

TEST_F(Priorities, NoPolicyTagRefusesPolicyOnly) {
  plat::StringParameter guarded("Guarded", "Kept from policy", "d", false, &group,
                                "noPolicy,other");
  guarded.addCallback(&recorder);
  EXPECT_TRUE(guarded.hasTag("other"));
  EXPECT_FALSE(guarded.setFromString("p", 30));
  EXPECT_FALSE(guarded.setFromString("p", 99));
  EXPECT_TRUE(recorder.take().empty());
  EXPECT_TRUE(guarded.setFromString("low", 29));
}

TEST_F(Priorities, ResetSyncFromAndClone) {
  log.setFromString("a", 10);
  log.setFromString("b", 30);
  recorder.take();
  EXPECT_TRUE(log.reset(true));
  EXPECT_EQ(log.getAllValues(), (std::map<int, plat::String>{{0, plat::String("")}}));
  EXPECT_EQ(recorder.take(), std::vector<int>{0});
  EXPECT_FALSE(log.reset(true));
  log.setFromString("a", 10);
  EXPECT_TRUE(log.reset(false));
  EXPECT_EQ(recorder.take(), std::vector<int>{10}); // from the set; the reset was silent

  plat::StringParameter source("Source", "Other", "base", false, &group);
  source.setFromString("policy", 30);
  log.setFromString("pref", 10);
  recorder.take();
  log.syncFrom(source);
  EXPECT_EQ(log.getAllValues(), source.getAllValues());
  EXPECT_EQ(recorder.take(), (std::vector<int>{10, 0, 30})); // the 10 the source lacks goes first
  log.syncFrom(log);
  EXPECT_TRUE(recorder.take().empty());

  plat::IntParameter count("Count", plat::DescKey{"demo_key"}, 3, true, &group, 0, 9, "a,b");
  count.setFromString("7", 10);
  count.addCallback(&recorder);
  plat::Configuration target("Target", nullptr);
  std::unique_ptr<plat::ConfigParameter> copy = count.clone(&target);
  EXPECT_EQ(target.findParam("count", false), copy.get());
  EXPECT_EQ(copy->getAllValues(), count.getAllValues());
  EXPECT_EQ(copy->tags(), count.tags());
  EXPECT_TRUE(copy->isAdvanced());
  EXPECT_STREQ(copy->locDesc(), "demo_key");
  EXPECT_NE(copy->name(), count.name()); // a copy of the text
  EXPECT_EQ(dynamic_cast<plat::IntParameter&>(*copy).max(), 9);
  copy->setFromString("8", 10);
  EXPECT_TRUE(recorder.take().empty());
}

// A root with one subgroup, as the program's configuration has.
class Groups : public testing::Test {
protected:
  Groups() { root.addSubgroup(&child); }

  plat::Configuration root{"Root", nullptr};
  plat::Configuration child{"Child", nullptr};
  plat::BoolParameter flag{"Flag", "A flag", false, false, &root};
  plat::IntParameter count{"Count", "How many", 1, false, &root, 0, 10};
  plat::StringParameter name{"Name", "Who", "nobody", false, &child};
};

TEST_F(Groups, FindingGettingAndSettingByName) {
  EXPECT_EQ(root.findParam("name", false), nullptr);
  EXPECT_TRUE(root.setParam("NAME", "me", 10)); // through the subgroup
  EXPECT_EQ(str(root.getString("name")), "me");
  EXPECT_FALSE(root.setParam("unknown", "1", 10));
  EXPECT_THROW(root.getInt("Flag"), plat::AssertionFail);
  EXPECT_TRUE(root.getBool("Count", true)); // the fallback for another type
  EXPECT_THROW(root.getParam("Missing"), plat::Exception);
  plat::IntParameter shadow("count", "Shadow", 0, false, &child);
  EXPECT_FALSE(root.setParam("COUNT", "20", 10)); // the root's own refuses; no fallback
  EXPECT_EQ(shadow.getPriority(), 0);
}

struct RefusingAlias : plat::ParameterAlias {
  RefusingAlias() : ParameterAlias("Count") {}
  bool expand(const char*, const char*, plat::ParamValueMap&) const override { return false; }
};

TEST_F(Groups, AliasesSetTheirTargets) {
  plat::ParameterAlias old("OldCount", count, &root);
  plat::ParameterAlias both("Count", "Name");
  RefusingAlias refusing;
  root.addAlias("both", &both);
  root.addAlias("Refusing", &refusing);
  EXPECT_TRUE(root.setParam("oldcount", "7", 10));
  EXPECT_EQ(static_cast<int>(count), 7);
  EXPECT_TRUE(root.setParam("BOTH", "9", 10));
  EXPECT_EQ(static_cast<int>(count), 9);
  EXPECT_EQ(str(name.getValueString()), "9");
  EXPECT_TRUE(root.setParam("Both", "x", 10)); // true when any target takes it
  EXPECT_EQ(str(name.getValueString()), "x");
  EXPECT_FALSE(root.setParam("OldCount", "x", 10));
  EXPECT_FALSE(root.setParam("Refusing", "3", 10));
}

TEST_F(Groups, MigrateAliasesRewritesRetiredNames) {
  struct Store : plat::Configuration::AliasStore {
    bool get(const char* key, plat::String& value) override {
      auto entry = values.find(key);
      if (entry != values.end())
        value = plat::String(entry->second.c_str());
      return entry != values.end();
    }
    void set(const char* key, const char* value) override { values[key] = value; }
    void remove(const char* key) override { values.erase(key); }
    std::map<std::string, std::string> values;
  } store;
  plat::ParameterAlias oldCount("OldCount", count, &root);
  plat::ParameterAlias oldName("OldName", name, &child);
  plat::ParameterAlias oldFlag("OldFlag", flag, &root);
  RefusingAlias refusing;
  root.addAlias("Broken", &refusing);
  store.values = {{"OldCount", "4"}, {"OldName", "n"}, {"OldFlag", "1"},
                  {"Flag", "0"},     {"Broken", "2"},  {"Other", "x"}};
  root.migrateAliases(store);
  EXPECT_EQ(store.values, (std::map<std::string, std::string>{
                              {"Count", "4"}, {"Name", "n"}, {"Flag", "0"}, {"Other", "x"}}));
}

TEST_F(Groups, CopyingAndComparingGroups) {
  plat::ParameterAlias old("OldFlag", flag, &root);
  count.setFromString("3", 30);
  plat::Configuration copy("Copy", nullptr);
  plat::IntParameter existing("COUNT", "Mine", 8, false, &copy, 0, 10);
  copy.assign(root); // syncs what it has, clones the rest, takes the aliases
  EXPECT_EQ(copy.findParam("count"), &existing);
  EXPECT_EQ(existing.getAllValues(), count.getAllValues());
  copy.addBool("Extra", "Only in the copy", false);
  EXPECT_TRUE(root.sameValues(copy));
  EXPECT_FALSE(copy.sameValues(root));
  EXPECT_TRUE(copy.setParam("oldflag", "1", 10));
  EXPECT_FALSE(flag);
  EXPECT_EQ(str(copy.differentNames(root)), "Flag");
  copy.applyDifferences(root, plat::Configuration(root));
  EXPECT_EQ(str(flag.getValueTextAt(10)), "1");

  plat::Configuration partial("Partial", nullptr);
  partial.copyValues(root, true, false);
  EXPECT_EQ(partial.findParam("Name"), nullptr);
  partial.copyValues(root, true, true);
  EXPECT_NE(partial.findParam("Name"), nullptr);
}

} // namespace
