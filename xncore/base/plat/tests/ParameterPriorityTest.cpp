// Values by priority, callbacks, and the operations that move values between
// parameters: reset, syncFrom, clone.
#include "Capture.h"

#include "plat/BinaryParameter.h"
#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/IntParameter.h"
#include "plat/StringParameter.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

class Recorder : public plat::ParameterChangedCallback {
public:
  void paramChanged(plat::ConfigParameter* parameter, int priority) override {
    calls.emplace_back(parameter, priority);
  }
  std::vector<int> priorities() const {
    std::vector<int> seen;
    for (const auto& call : calls)
      seen.push_back(call.second);
    return seen;
  }
  std::vector<std::pair<plat::ConfigParameter*, int>> calls;
};

class ParameterPriority : public testing::Test {
protected:
  ParameterPriority() { log.addCallback(&recorder); }

  std::string current() const { return log.getValueString().get(); }

  plat::Configuration group{"Test", nullptr};
  plat::StringParameter log{"Log", "Where messages go", "", false, &group};
  Recorder recorder;
};

TEST_F(ParameterPriority, PolicyHidesPreferenceUntilWithdrawn) {
  ASSERT_TRUE(log.setFromString("pref", 10));
  ASSERT_TRUE(log.setFromString("policy", 30));
  EXPECT_EQ(current(), "policy");
  EXPECT_EQ(log.getPriority(), 30);

  recorder.calls.clear();
  log.unset(30, true);
  EXPECT_EQ(current(), "pref");
  EXPECT_EQ(log.getPriority(), 10);
  ASSERT_EQ(recorder.calls.size(), 1u);
  EXPECT_EQ(recorder.calls[0].first, &log);
  EXPECT_EQ(recorder.calls[0].second, 30);
}

TEST_F(ParameterPriority, SameValueTwiceRunsCallbacksOnce) {
  log.setFromString("x", 10);
  log.setFromString("x", 10);
  EXPECT_EQ(recorder.priorities(), std::vector<int>{10});
  log.setFromString("y", 10);
  EXPECT_EQ(recorder.priorities(), (std::vector<int>{10, 10}));
}

TEST_F(ParameterPriority, ValueBeneathPolicyStillNotifies) {
  log.setFromString("policy", 30);
  recorder.calls.clear();
  EXPECT_TRUE(log.setFromString("pref", 10));
  EXPECT_EQ(recorder.priorities(), std::vector<int>{10});
  EXPECT_EQ(current(), "policy");
  EXPECT_EQ(log.getValueTextAt(10), plat::String("pref"));
}

TEST_F(ParameterPriority, UnsetIgnoresTheDefaultAndMissingPrioritiesAndCanBeSilent) {
  log.unset(0, true);
  log.unset(10, true);
  EXPECT_TRUE(recorder.calls.empty());
  EXPECT_TRUE(log.hasValueAt(0));

  log.setFromString("a", 10);
  recorder.calls.clear();
  log.unset(10, false);
  EXPECT_TRUE(recorder.calls.empty());
  EXPECT_FALSE(log.hasValueAt(10));
  EXPECT_EQ(log.getPriority(), 0);
}

TEST_F(ParameterPriority, NoPolicyTagRefusesPolicyOnly) {
  plat::StringParameter guarded("Guarded", "Kept from policy", "d", false, &group,
                                "noPolicy,other");
  guarded.addCallback(&recorder);
  EXPECT_TRUE(guarded.hasTag("noPolicy"));
  EXPECT_TRUE(guarded.hasTag("other"));
  EXPECT_FALSE(guarded.hasTag("nopolicy"));

  EXPECT_FALSE(guarded.setFromString("p", 30));
  EXPECT_FALSE(guarded.setFromString("p", 99));
  EXPECT_TRUE(recorder.calls.empty());
  EXPECT_TRUE(guarded.setFromString("pref", 10));
  EXPECT_TRUE(guarded.setFromString("low", 29));
  EXPECT_EQ(std::string(guarded.getValueString().get()), "low");
}

TEST_F(ParameterPriority, ResetDropsEverythingAboveDefaultAndNotifiesOnce) {
  log.setFromString("a", 10);
  log.setFromString("b", 30);
  recorder.calls.clear();

  EXPECT_TRUE(log.reset(true));
  EXPECT_EQ(log.getAllValues(), (std::map<int, plat::String>{{0, plat::String("")}}));
  EXPECT_EQ(recorder.priorities(), std::vector<int>{0});
  EXPECT_FALSE(log.reset(true));
  EXPECT_EQ(recorder.calls.size(), 1u);

  log.setFromString("a", 10);
  recorder.calls.clear();
  EXPECT_TRUE(log.reset(false));
  EXPECT_TRUE(recorder.calls.empty());
}

TEST_F(ParameterPriority, NotifyIfDefaultOnlyWhileDefaultIsInForce) {
  log.notifyIfDefault();
  EXPECT_EQ(recorder.priorities(), std::vector<int>{0});
  log.setFromString("a", 10);
  recorder.calls.clear();
  log.notifyIfDefault();
  EXPECT_TRUE(recorder.calls.empty());
}

TEST_F(ParameterPriority, CallbacksRunInOrderOfAdding) {
  std::vector<int> order;
  struct Tagged : plat::ParameterChangedCallback {
    Tagged(std::vector<int>& out, int tag) : out_(out), tag_(tag) {}
    void paramChanged(plat::ConfigParameter*, int) override { out_.push_back(tag_); }
    std::vector<int>& out_;
    int tag_;
  } first(order, 1), second(order, 2);
  log.addCallback(&first);
  log.addCallback(&second);
  log.notify(10);
  EXPECT_EQ(order, (std::vector<int>{1, 2}));
}

TEST_F(ParameterPriority, SyncFromCopiesPrioritiesAndValues) {
  plat::StringParameter source("Source", "Other", "base", false, &group);
  source.setFromString("policy", 30);
  log.setFromString("pref", 10);
  recorder.calls.clear();

  log.syncFrom(source);
  std::map<int, plat::String> expected{{0, plat::String("base")}, {30, plat::String("policy")}};
  EXPECT_EQ(log.getAllValues(), expected);
  // The priority 10 that the source lacks is removed with notification.
  EXPECT_EQ(recorder.priorities(), (std::vector<int>{10, 0, 30}));
}

TEST_F(ParameterPriority, SyncFromItselfChangesNothing) {
  log.setFromString("pref", 10);
  recorder.calls.clear();
  log.syncFrom(log);
  EXPECT_TRUE(recorder.calls.empty());
  EXPECT_EQ(current(), "pref");
}

TEST_F(ParameterPriority, CloneCarriesValuesTagsAndTextsButNoCallbacks) {
  plat::IntParameter count("Count", plat::DescKey{"demo_key"}, 3, true, &group, 0, 9, "a,b");
  count.setFromString("7", 10);
  count.addCallback(&recorder);
  plat::Configuration target("Target", nullptr);

  std::unique_ptr<plat::ConfigParameter> copy = count.clone(&target);
  EXPECT_EQ(target.findParam("count", false), copy.get());
  EXPECT_EQ(copy->group(), &target);
  EXPECT_STREQ(copy->typeName(), "int");
  EXPECT_EQ(copy->getAllValues(), count.getAllValues());
  EXPECT_EQ(copy->tags(), count.tags());
  EXPECT_TRUE(copy->isAdvanced());
  EXPECT_STREQ(copy->locDesc(), "demo_key");
  EXPECT_EQ(copy->desc(), nullptr);
  EXPECT_TRUE(copy->ownsText());
  EXPECT_NE(copy->name(), count.name());
  auto* range = dynamic_cast<plat::IntParameter*>(copy.get());
  ASSERT_NE(range, nullptr);
  EXPECT_EQ(range->min(), 0);
  EXPECT_EQ(range->max(), 9);

  copy->setFromString("8", 10);
  EXPECT_TRUE(recorder.calls.empty());
}

TEST_F(ParameterPriority, DefaultTextAndTextAtEachPriority) {
  plat::IntParameter days("Days", "Keep", 30, false, &group, 0, 100);
  days.setFromString("5", 10);
  EXPECT_EQ(days.getDefault(), plat::String("30"));
  EXPECT_EQ(days.getValueString(), plat::String("5"));
  EXPECT_EQ(days.getValueTextAt(0), plat::String("30"));
  EXPECT_TRUE(days.getValueTextAt(20).isNull());
}

TEST(PriorityName, NamesOfPriorities) {
  struct Case {
    int priority;
    bool preferenceBelow;
    const char* name;
  } cases[] = {
      {0, false, "Default"},
      {10, false, "Preference"},
      {30, false, "Policy"},
      {30, true, "Policy overriding preference"},
      {45, true, "Policy overriding preference"},
      {10, true, "Preference"},
      {5, false, "Priority 5"},
      {29, true, "Priority 29"},
      {-1, false, "Priority -1"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(std::string(plat::priorityName(c.priority, c.preferenceBelow).get()), c.name)
        << c.priority;
  }
  EXPECT_FALSE(plat::isPriorityPolicy(29));
  EXPECT_TRUE(plat::isPriorityPolicy(30));
}

TEST(ParameterTrace, ChangesAreLoggedWithTheirPriority) {
  plattest::LogCapture capture;
  plat::Configuration group("Traced", nullptr);
  plat::IntParameter count("Count", "How many", 1, false, &group);
  plat::BinaryParameter secret("Secret", "Key", {}, false, &group);

  count.setFromString("5", 10);
  count.setFromString("2", 0);
  count.unset(10, false);
  secret.setFromString("abcd", 10);

  std::vector<plattest::LogRecord> records = capture.from("ConfigParameter");
  ASSERT_EQ(records.size(), 4u);
  EXPECT_EQ(records[0].level, 100);
  EXPECT_EQ(records[0].text, "set Count(int) to 5, priority 10");
  EXPECT_EQ(records[1].level, 110);
  EXPECT_EQ(records[1].text, "set Count(int) to 2, priority 0");
  EXPECT_EQ(records[2].level, 100);
  EXPECT_EQ(records[2].text, "unset Count(int) priority 10, now 2, priority 0");
  EXPECT_EQ(records[3].text, "set Secret(binary) to <binary>, priority 10");

  capture.clear();
  group.setTraceChanges(false);
  count.setFromString("6", 10);
  count.unset(10, true);
  EXPECT_TRUE(capture.from("ConfigParameter").empty());
}

TEST(ParameterDeathTest, DescriptionIsRequired) {
  plat::Configuration group("Test", nullptr);
  EXPECT_EXIT(plat::BoolParameter("Flag", nullptr, false, false, &group),
              testing::ExitedWithCode(1), "Assertion 'desc \\|\\| locDesc' failed");
  // An empty literal counts as a description.
  plat::BoolParameter quiet("Quiet", "", false, false, &group);
  EXPECT_STREQ(quiet.getDescription(), "");
}

TEST(ParameterDeathTest, StringDefaultMustNotBeNull) {
  plat::Configuration group("Test", nullptr);
  EXPECT_EXIT(plat::StringParameter("Text", "Some text", nullptr, false, &group),
              testing::ExitedWithCode(1),
              "Assertion 'v' failed at .*: Default value <null> for Text not allowed");
}

} // namespace
