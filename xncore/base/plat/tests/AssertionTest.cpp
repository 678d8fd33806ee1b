#include "plat/Assertion.h"

#include "plat/Exception.h"
#include "plat/StringUtils.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

// What the non-fatal path logs.
std::vector<std::string> logged;

class AssertionTest : public ::testing::Test {
protected:
  void SetUp() override { logged.clear(); }
  void TearDown() override { plat::setAssertionLog({}); }
};

using AssertionDeathTest = AssertionTest;

int zero() {
  return 0;
}

TEST_F(AssertionDeathTest, AssertExitsWithStatusOne) {
  EXPECT_EXIT(XN_ASSERT(zero() == 1), ::testing::ExitedWithCode(1),
              "Assertion 'zero\\(\\) == 1' failed at .*AssertionTest\\.cpp:[0-9]+");
  XN_ASSERT(zero() == 0);
}

TEST_F(AssertionDeathTest, FirstAssertionLogsStackAndFlushes) {
  // In the dying child the log goes to standard error, where the parent can see it.
  EXPECT_EXIT(
      {
        plat::setAssertionLog({[](const char* text) { std::fprintf(stderr, "LOG<%s>\n", text); },
                               [] { std::fprintf(stderr, "FLUSHED\n"); }});
        XN_ASSERT(zero() == 2);
      },
      ::testing::ExitedWithCode(1),
      "LOG<Assertion 'zero\\(\\) == 2' failed at [^>]*>\nLOG<stacktrace: [^>]*>\n(.|\n)*FLUSHED");
}

TEST_F(AssertionDeathTest, AssertionWhileReportingDoesNotRecurse) {
  // The log itself fails; the second assertion skips logging and ends the process.
  EXPECT_EXIT(
      {
        plat::setAssertionLog({[](const char*) { XN_ASSERT(zero() == 4); }, nullptr});
        XN_ASSERT(zero() == 3);
      },
      ::testing::ExitedWithCode(1), "Assertion 'zero\\(\\) == 4' failed");
}

TEST_F(AssertionTest, AssertThrowRaisesAssertionFail) {
  int value = 16;
  try {
    XN_ASSERT_THROW(value < 16);
    FAIL() << "no exception";
  } catch (const plat::Exception& e) {
    EXPECT_STREQ(e.type(), "AssertionFail");
    EXPECT_TRUE(plat::startsWith(e.what(), "Assertion 'value < 16' failed at "));
  }
  EXPECT_NO_THROW(XN_ASSERT_THROW(value == 16));
}

TEST_F(AssertionTest, WarningLogsAndReturns) {
  plat::setAssertionLog({[](const char* text) { logged.emplace_back(text); }, nullptr});
  plat::assertionWarning(plat::AssertionFail("cond", "w.cpp", 9));
  int value = 1;
  XN_ASSERT_WARN(value == 1);
  XN_ASSERT_WARN(value == 2);
  ASSERT_EQ(logged.size(), 2u);
  EXPECT_EQ(logged[0], "Warning: Assertion 'cond' failed at w.cpp:9");
  EXPECT_TRUE(plat::startsWith(logged[1].c_str(), "Warning: Assertion 'value == 2' failed at "));

  // A failing log must not turn a warning into an exception.
  plat::setAssertionLog({[](const char*) { throw plat::Exception("log is broken"); }, nullptr});
  EXPECT_NO_THROW(plat::assertionWarning(plat::AssertionFail("cond", "w.cpp", 10)));
}

struct Base {
  virtual ~Base() = default;
};
struct Derived : Base {};
struct Other : Base {};

TEST_F(AssertionDeathTest, PointerChecks) {
  int value = 5;
  EXPECT_EQ(XN_CHECK_PTR(&value), &value);
  int* null = nullptr;
  EXPECT_EXIT(XN_CHECK_PTR(null), ::testing::ExitedWithCode(1),
              "Assertion 't' failed at .*: int is null");

  Derived derived;
  Base* base = &derived;
  EXPECT_EQ(XN_CHECKED_CAST(Derived, base), &derived);
  EXPECT_EXIT(XN_CHECKED_CAST(Other, base), ::testing::ExitedWithCode(1),
              "Assertion 't' failed at .*: .*Other is null");
}

TEST_F(AssertionDeathTest, BadUtf8CanBeMadeFatal) {
  EXPECT_EXIT(
      {
        plat::setBadUtf8Asserts(true);
        plat::BadUtf8 bad(plat::formatted, "Bad UTF-8 string for %s", "Name");
      },
      ::testing::ExitedWithCode(1),
      "Assertion '!badUtf8Assert' failed at .*: Bad UTF-8 string for Name");
  // The child's setting does not leak into this process.
  EXPECT_FALSE(plat::badUtf8Asserts());
}

} // namespace
