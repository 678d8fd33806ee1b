// The XML form of a configuration: the exact document, reading it back, and
// the documents that are refused.
#include "plat/XmlConfig.h"

#include "plat/BinaryParameter.h"
#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/EnumParameter.h"
#include "plat/Exception.h"
#include "plat/IntParameter.h"
#include "plat/S64Parameter.h"
#include "plat/StringParameter.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

const char* const loudness[] = {"Low", "Medium", "High", nullptr};

std::string readFailure(const std::string& text) {
  plat::Configuration group("Read", nullptr);
  try {
    plat::readXmlConfig(group, text.c_str(), nullptr);
  } catch (const plat::Exception& failure) {
    return failure.what();
  }
  return "<accepted>";
}

// One parameter element around `inner` attributes and `body`.
std::string document(const std::string& element) {
  return "<?xml version=\"1.0\"?>\n<config>\n" + element + "</config>\n";
}

class XmlDocumentOfGroup : public testing::Test {
protected:
  XmlDocumentOfGroup() {
    count.setFromString("5", 10);
    level.setFromString("high", 10);
  }

  plat::Configuration group{"Doc", nullptr};
  plat::BoolParameter flag{"Flag", "A \"quoted\" flag & more", true, false, &group, "noPolicy,b"};
  plat::IntParameter count{"Count", plat::DescKey{"plat_param_log_keep_days"}, 30, false, &group, 0,
                           100};
  plat::EnumParameter level{"Level", "Loudness", "Medium", loudness, false, &group};
  plat::StringParameter hidden{"_Hidden", "Internal", "h", false, &group};
};

TEST_F(XmlDocumentOfGroup, ExactTemplate) {
  std::string expected = "<?xml version=\"1.0\"?>\n"
                         "<config>\n"
                         "<int    name=\"Count\"\n"
                         "        locDesc=\"plat_param_log_keep_days\"\n"
                         "        advanced=\"false\"\n"
                         "        min=\"0\"\n"
                         "        max=\"100\">\n"
                         "    <value data=\"30\" priority=\"0\"/>\n"
                         "    <value data=\"5\" priority=\"10\"/>\n"
                         "</int>\n"
                         "<bool   name=\"Flag\"\n"
                         "        description=\"A &quot;quoted&quot; flag &amp; more\"\n"
                         "        advanced=\"false\"\n"
                         "        flags=\"b,noPolicy\">\n"
                         "    <value data=\"1\" priority=\"0\"/>\n"
                         "</bool>\n"
                         "<enum   name=\"Level\"\n"
                         "        description=\"Loudness\"\n"
                         "        advanced=\"false\"\n"
                         "        min=\"0\"\n"
                         "        max=\"2\">\n"
                         "    <value data=\"Medium\" priority=\"0\"/>\n"
                         "    <value data=\"High\" priority=\"10\"/>\n"
                         "    <opt data=\"Low\"/>\n"
                         "    <opt data=\"Medium\"/>\n"
                         "    <opt data=\"High\"/>\n"
                         "</enum>\n"
                         "</config>\n";
  EXPECT_EQ(std::string(plat::writeXmlConfig(group, false, true, nullptr).get()), expected);
}

TEST_F(XmlDocumentOfGroup, DescriptionTextWithoutKeysAndHiddenOnRequest) {
  std::string written = plat::writeXmlConfig(group, true, false, nullptr).get();
  EXPECT_NE(
      written.find("<int    name=\"Count\"\n        description=\"Keep log files for X days.\""),
      std::string::npos);
  EXPECT_EQ(written.find("locDesc"), std::string::npos);
  EXPECT_NE(written.find("<string name=\"_Hidden\""), std::string::npos);
}

TEST_F(XmlDocumentOfGroup, FilterChoosesInBothDirections) {
  struct OnlyInts : plat::XmlConfigFilter {
    bool accept(const char* name, const char* typeName, bool advanced) override {
      seen += std::string(name) + ":" + typeName + (advanced ? "+" : "") + " ";
      return std::strcmp(typeName, "int") == 0 || std::strcmp(typeName, "INT") == 0;
    }
    std::string seen;
  } filter;
  std::string written = plat::writeXmlConfig(group, false, false, &filter).get();
  EXPECT_EQ(filter.seen, "Count:int Flag:bool Level:enum ");
  EXPECT_EQ(written.find("Flag"), std::string::npos);
  EXPECT_NE(written.find("Count"), std::string::npos);

  std::string full = plat::writeXmlConfig(group, false, false, nullptr).get();
  plat::Configuration read("Read", nullptr);
  filter.seen.clear();
  plat::readXmlConfig(read, full.c_str(), &filter);
  EXPECT_EQ(filter.seen, "Count:int Flag:bool Level:enum ");
  EXPECT_NE(read.findParam("Count"), nullptr);
  EXPECT_EQ(read.findParam("Flag"), nullptr);
  EXPECT_EQ(read.findParam("Level"), nullptr);
}

TEST(XmlConfigRoundTrip, ReadingWhatWasWrittenGivesTheSameValues) {
  plat::Configuration group("Source", nullptr);
  plat::Configuration child("Child", nullptr);
  group.addSubgroup(&child);
  plat::BoolParameter flag("Flag", "A flag", false, true, &group, "noPolicy");
  plat::IntParameter count("Count", "Counts <things>", -3, false, &group, -10, 10);
  plat::EnumParameter level("Level", plat::DescKey{"plat_param_log"}, "Low", loudness, false,
                            &group);
  plat::StringParameter text("Text", "Words", "caf\xC3\xA9 & 'tea'", false, &child);
  plat::S64Parameter big("Big", "Large", -2, false, &child);
  plat::BinaryParameter blob("Blob", "Bytes", plat::MBuf<unsigned char>(0, true), false, &group);
  plat::StringParameter hidden("_Hidden", "Internal", "", false, &group);
  flag.setFromString("yes", 10);
  count.setFromString("7", 10);
  count.setFromString("-1", 35);
  level.setFromString("HIGH", 30);
  text.setFromString("line one\nline \"two\"\t<end>", 10);
  big.setFromString("0000000000000001", 10);
  blob.setFromString("00FF", 10);
  hidden.setFromString("secret", 10);

  plat::String written = plat::writeXmlConfig(group, true, true, nullptr);
  plat::Configuration read("Read", nullptr);
  plat::readXmlConfig(read, written.get(), nullptr);

  EXPECT_TRUE(read.sameValues(group));
  EXPECT_TRUE(group.sameValues(read));
  group.forEachParam([&](plat::ConfigParameter& original) {
    SCOPED_TRACE(original.name());
    plat::ConfigParameter* copy = read.findParam(original.name(), false);
    ASSERT_NE(copy, nullptr);
    EXPECT_STREQ(copy->typeName(), original.typeName());
    EXPECT_EQ(copy->getAllValues(), original.getAllValues());
    EXPECT_EQ(copy->tags(), original.tags());
    EXPECT_EQ(copy->isAdvanced(), original.isAdvanced());
    EXPECT_STREQ(copy->getDescription(), original.getDescription());
    EXPECT_STREQ(copy->locDesc(), original.locDesc());
    EXPECT_TRUE(copy->ownsText());
  });
  auto* readCount = dynamic_cast<plat::IntParameter*>(read.findParam("Count"));
  ASSERT_NE(readCount, nullptr);
  EXPECT_EQ(readCount->min(), -10);
  EXPECT_EQ(readCount->max(), 10);
  auto* readLevel = dynamic_cast<plat::EnumParameter*>(read.findParam("Level"));
  ASSERT_NE(readLevel, nullptr);
  EXPECT_STREQ(readLevel->names()[2], "High");
  EXPECT_EQ(readLevel->names()[3], nullptr);
  EXPECT_NE(std::strstr(written.get(), "<value data=\"High\" priority=\"30\"/>"), nullptr);
  // The noPolicy tag travels, and still keeps policy out.
  EXPECT_FALSE(read.setParam("Flag", "0", 30));
}

TEST(XmlConfigRead, EmptiesTheGroupFirst) {
  plat::Configuration group("Read", nullptr);
  plat::BoolParameter declared("Declared", "Here before", false, false, &group);
  group.addInt("Added", "Also here", 1);
  plat::readXmlConfig(group,
                      document("<BOOL name=\"Only\" locDesc=\"plat_param_log\" advanced=\"TRUE\">\n"
                               "    <value data=\"on\" priority=\"0\"/>\n</BOOL>\n")
                          .c_str(),
                      nullptr);
  EXPECT_EQ(group.findParam("Declared"), nullptr);
  EXPECT_EQ(group.findParam("Added"), nullptr);
  plat::ConfigParameter* only = group.findParam("only");
  ASSERT_NE(only, nullptr);
  EXPECT_STREQ(only->typeName(), "bool");
  EXPECT_TRUE(only->isAdvanced());
  EXPECT_EQ(only->getDefault(), plat::String("1"));
  EXPECT_STREQ(only->getDescription(), "Record events in the format <log>:<target>:<level>[,...].");
}

TEST(XmlConfigRead, TextThatIsNotXml) {
  EXPECT_EQ(readFailure("<config>\n<bool></int>\n</config>"),
            "XML error 2:7 Error: Unmatched end tag");
  EXPECT_EQ(readFailure("<settings/>"), "XML error 1:1 Error: First Tag not found");
  EXPECT_EQ(readFailure(""), "XML error 1:1 Error: No XML data");
  EXPECT_EQ(readFailure("<config>&what;</config>"),
            "XML error 1:9 Error: Unknown character entity");
}

TEST(XmlConfigRead, XmlThatIsNotAConfiguration) {
  const char* value = "<value data=\"1\" priority=\"0\"/>";
  std::string cases[] = {
      std::string("<bool description=\"d\">") + value + "</bool>",
      std::string("<bool name=\"a\">") + value + "</bool>",
      "<bool name=\"a\" description=\"d\"></bool>",
      "<bool name=\"a\" description=\"d\"><opt data=\"x\"/></bool>",
      "<bool name=\"a\" description=\"d\"><value priority=\"0\"/></bool>",
      "<bool name=\"a\" description=\"d\"><value data=\"1\"/></bool>",
      "<bool name=\"a\" description=\"d\"><value data=\"1\" priority=\"ten\"/></bool>",
      std::string("<float name=\"a\" description=\"d\">") + value + "</float>",
      std::string("<int name=\"a\" description=\"d\" min=\"low\">") + value + "</int>",
      std::string("<enum name=\"a\" description=\"d\">") + value + "<opt/></enum>",
  };
  for (const std::string& element : cases) {
    SCOPED_TRACE(element);
    EXPECT_EQ(readFailure(document(element)), "Incompatible XML config");
  }
}

TEST(XmlConfigRead, AbsentRangeMeansTheWholeInt) {
  plat::Configuration group("Read", nullptr);
  plat::readXmlConfig(group,
                      document("<int name=\"N\" description=\"\">"
                               "<value data=\"-2147483648\" priority=\"0\"/></int>")
                          .c_str(),
                      nullptr);
  auto* number = dynamic_cast<plat::IntParameter*>(group.findParam("N"));
  ASSERT_NE(number, nullptr);
  EXPECT_EQ(number->min(), INT32_MIN);
  EXPECT_EQ(number->max(), INT32_MAX);
  EXPECT_EQ(static_cast<int>(*number), INT32_MIN);
}

} // namespace
