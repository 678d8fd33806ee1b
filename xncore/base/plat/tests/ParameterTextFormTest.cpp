// The text forms that each parameter class accepts and gives back.
#include "Capture.h"

#include "plat/BinaryParameter.h"
#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/EnumParameter.h"
#include "plat/Exception.h"
#include "plat/IntParameter.h"
#include "plat/LogParameters.h"
#include "plat/S64Parameter.h"
#include "plat/StringParameter.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace {

struct TextCase {
  const char* text;
  bool accepted;
  const char* result; // the value's text afterwards
};

std::string valueOf(const plat::ConfigParameter& parameter) {
  return parameter.getValueString().get();
}

TEST(BoolText, WordsInAnyCase) {
  // Every case starts from false, except the false words, which start from true.
  struct Case {
    const char* text;
    bool accepted;
    bool value;
  } cases[] = {
      {nullptr, true, true},  {"", true, true},       {"1", true, true},    {"on", true, true},
      {"ON", true, true},     {"True", true, true},   {"yes", true, true},  {"0", true, false},
      {"off", true, false},   {"FALSE", true, false}, {"No", true, false},  {"2", false, false},
      {"yess", false, false}, {" on", false, false},  {"-1", false, false}, {"t", false, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text ? c.text : "<null>");
    plat::Configuration group("Test", nullptr);
    bool start = c.accepted && !c.value;
    plat::BoolParameter flag("Flag", "A flag", start, false, &group);
    plattest::LogCapture capture;

    EXPECT_EQ(flag.setFromString(c.text, 10), c.accepted);
    EXPECT_EQ(static_cast<bool>(flag), c.accepted ? c.value : start);
    EXPECT_EQ(flag.getInt(), flag ? 1 : 0);
    bool parsed = !c.value;
    EXPECT_EQ(plat::parseBool(c.text, parsed), c.accepted);
    EXPECT_EQ(parsed, c.accepted ? c.value : !c.value);

    std::vector<plattest::LogRecord> records = capture.from("ConfigParameter");
    if (c.accepted) {
      EXPECT_EQ(records.size(), c.value == start ? 0u : 1u); // only the trace of a change
    } else {
      ASSERT_EQ(records.size(), 1u);
      EXPECT_EQ(records[0].level, 0);
      EXPECT_EQ(records[0].text,
                std::string("Bool parameter Flag: invalid value '") + c.text + "'");
    }
  }
}

TEST(BoolText, IntegersAndTextOut) {
  plat::Configuration group("Test", nullptr);
  plat::BoolParameter flag("Flag", "A flag", false, false, &group);
  EXPECT_TRUE(flag.setInt(5, 10));
  EXPECT_TRUE(flag);
  EXPECT_EQ(valueOf(flag), "1");
  EXPECT_TRUE(flag.setInt(0, 10));
  EXPECT_FALSE(flag);
  EXPECT_EQ(valueOf(flag), "0");
}

TEST(IntText, BaseZeroFormsWithinTheRange) {
  TextCase cases[] = {
      {"42", true, "42"},    {"0x1f", true, "31"},
      {"0X10", true, "16"},  {"017", true, "15"},
      {"-5", true, "-5"},    {"100", true, "100"},
      {"-6", false, "0"},    {"101", false, "0"},
      {"12abc", false, "0"}, {"0x", false, "0"},
      {"", false, "0"},      {nullptr, false, "0"},
      {"4 ", false, "0"},    {"99999999999", false, "0"},
  };
  for (const TextCase& c : cases) {
    SCOPED_TRACE(c.text ? c.text : "<null>");
    plat::Configuration group("Test", nullptr);
    plat::IntParameter count("Count", "How many", 0, false, &group, -5, 100);
    EXPECT_EQ(count.setFromString(c.text, 10), c.accepted);
    EXPECT_EQ(valueOf(count), c.result);
    EXPECT_EQ(count.hasValueAt(10), c.accepted);
  }
}

TEST(IntText, SetIntChecksTheRange) {
  plat::Configuration group("Test", nullptr);
  plat::IntParameter count("Count", "How many", 0, false, &group, 1, 3);
  EXPECT_FALSE(count.setInt(0, 10));
  EXPECT_FALSE(count.setInt(4, 10));
  EXPECT_TRUE(count.setInt(3, 10));
  EXPECT_EQ(static_cast<int>(count), 3);
  EXPECT_EQ(count.getInt(), 3);
}

TEST(IntText, NegativeLogKeepDaysIsRefused) {
  EXPECT_FALSE(plat::logKeepDaysParameter.setFromString("-1", 10));
  EXPECT_EQ(static_cast<int>(plat::logKeepDaysParameter), 30);
  EXPECT_EQ(plat::logKeepDaysParameter.getPriority(), 0);
}

const char* const levels[] = {"Low", "Medium", "High", nullptr};

TEST(EnumText, NamesWithoutRegardToCase) {
  TextCase cases[] = {
      {"High", true, "High"},    {"high", true, "High"}, {"LOW", true, "Low"},
      {"none", false, "Medium"}, {"1", false, "Medium"}, {nullptr, false, "Medium"},
      {"", false, "Medium"},
  };
  for (const TextCase& c : cases) {
    SCOPED_TRACE(c.text ? c.text : "<null>");
    plat::Configuration group("Test", nullptr);
    plat::EnumParameter level("Level", "How loud", "medium", levels, false, &group);
    EXPECT_EQ(level.setFromString(c.text, 10), c.accepted);
    EXPECT_EQ(valueOf(level), c.result);
  }
}

TEST(EnumText, IndexRangeAndDefaults) {
  plat::Configuration group("Test", nullptr);
  plat::EnumParameter level("Level", "How loud", "HIGH", levels, false, &group);
  EXPECT_EQ(level.getInt(), 2);
  EXPECT_EQ(level.min(), 0);
  EXPECT_EQ(level.max(), 2);
  EXPECT_FALSE(level.setInt(3, 10));
  EXPECT_TRUE(level.setInt(0, 10));
  EXPECT_EQ(valueOf(level), "Low");
  EXPECT_EQ(level.getDefault(), plat::String("High"));
  EXPECT_EQ(level.valueToString(1), plat::String("Medium"));

  plat::EnumParameter unknown("Unknown", "Fallback", "absent", levels, false, &group);
  plat::EnumParameter none("None", "Fallback", nullptr, levels, false, &group);
  EXPECT_EQ(unknown.getInt(), 0);
  EXPECT_EQ(none.getInt(), 0);

  EXPECT_EQ(plat::findEnumIndex("medium", levels, -1), 1);
  EXPECT_EQ(plat::findEnumIndex("loud", levels, -1), -1);
  EXPECT_EQ(plat::findEnumIndex(nullptr, levels, 7), 7);
  EXPECT_EQ(plat::maxEnumIndex(levels), 2);
}

TEST(StringText, NullRefusedAndBadUtf8Raised) {
  plat::Configuration group("Test", nullptr);
  plat::StringParameter text("Text", "Some text", "start", false, &group);
  EXPECT_FALSE(text.setFromString(nullptr, 10));
  EXPECT_TRUE(text.setFromString("", 10));
  EXPECT_EQ(valueOf(text), "");
  EXPECT_TRUE(text.setFromString("gr\xC3\xBC\xC3\x9F", 10));

  try {
    text.setFromString("bad \xFF byte", 10);
    FAIL() << "no exception";
  } catch (const plat::BadUtf8& failure) {
    EXPECT_STREQ(failure.what(), "Bad UTF-8 string for Text");
    EXPECT_STREQ(failure.type(), "BadUtf8");
  }
  EXPECT_EQ(valueOf(text), "gr\xC3\xBC\xC3\x9F");
  EXPECT_EQ(static_cast<plat::String>(text), plat::String("gr\xC3\xBC\xC3\x9F"));
}

TEST(S64Text, BothSpellings) {
  struct Case {
    const char* text;
    bool accepted;
    std::int64_t value;
    const char* stored;
  } cases[] = {
      {"int64:0123456789abcdef", true, 0x0123456789abcdefLL, "int64:0123456789abcdef"},
      {"int64:FFFFFFFFFFFFFFFE", true, -2, "int64:FFFFFFFFFFFFFFFE"},
      {"0000000000000001", true, 0x0100000000000000LL, "int64:0100000000000000"},
      {"0100000000000000", true, 1, "int64:0000000000000001"},
      {"efcdab8967452301", true, 0x0123456789abcdefLL, "int64:0123456789abcdef"},
      {"int64:123", false, 7, "int64:0000000000000007"},
      {"int64:0123456789abcdeg", false, 7, "int64:0000000000000007"},
      {"Int64:0123456789abcdef", false, 7, "int64:0000000000000007"},
      {"00000000000000", false, 7, "int64:0000000000000007"},
      {"000000000000000001", false, 7, "int64:0000000000000007"},
      {"000000000000000", false, 7, "int64:0000000000000007"},
      {nullptr, false, 7, "int64:0000000000000007"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text ? c.text : "<null>");
    plat::Configuration group("Test", nullptr);
    plat::S64Parameter big("Big", "Large", 7, false, &group);
    EXPECT_EQ(big.setFromString(c.text, 10), c.accepted);
    EXPECT_EQ(valueOf(big), c.stored);
    EXPECT_EQ(big.getS64(), c.accepted ? c.value : 7);
  }
}

TEST(S64Text, SetS64WritesTheStoredForm) {
  plat::Configuration group("Test", nullptr);
  plat::S64Parameter big("Big", "Large", 0, false, &group);
  EXPECT_TRUE(big.setS64(-2, 10));
  EXPECT_EQ(valueOf(big), "int64:fffffffffffffffe");
  EXPECT_EQ(big.getS64(), -2);
  EXPECT_TRUE(big.setS64(INT64_MIN, 10));
  EXPECT_EQ(big.getS64(), INT64_MIN);
  EXPECT_STREQ(big.typeName(), "s64");
}

TEST(BinaryText, HexInAndOut) {
  TextCase cases[] = {
      {"00ff10", true, "00ff10"}, {"ABCD", true, "abcd"}, {"", true, ""},
      {"abc", false, "01"},       {"zz", false, "01"},    {nullptr, false, "01"},
  };
  for (const TextCase& c : cases) {
    SCOPED_TRACE(c.text ? c.text : "<null>");
    plat::Configuration group("Test", nullptr);
    const unsigned char one[] = {1};
    plat::BinaryParameter blob("Blob", "Bytes", plat::MBuf<unsigned char>(one, 1), false, &group);
    EXPECT_EQ(blob.setFromString(c.text, 10), c.accepted);
    EXPECT_EQ(valueOf(blob), c.result);
    EXPECT_EQ(blob.getValueTextAt(blob.getPriority()), plat::String("<binary>"));
    EXPECT_TRUE(blob.isAdvanced());
  }
}

TEST(BinaryText, SecureDefaultKeepsEveryValueSecure) {
  plat::Configuration group("Test", nullptr);
  plat::BinaryParameter secret("Secret", "Key", plat::MBuf<unsigned char>(0, true), false, &group);
  plat::BinaryParameter open("Open", "Data", plat::MBuf<unsigned char>(), false, &group);
  ASSERT_TRUE(secret.setFromString("0102", 10));
  ASSERT_TRUE(open.setFromString("0102", 10));

  plat::MBuf<unsigned char> out;
  secret.getBinary(out);
  EXPECT_TRUE(out.isSecure());
  ASSERT_EQ(out.length(), 2);
  EXPECT_EQ(out[0], 1);
  EXPECT_EQ(out[1], 2);
  open.getBinary(out);
  EXPECT_FALSE(out.isSecure());
  EXPECT_EQ(out.length(), 2);
}

} // namespace
