// The XML reader (the tree, whitespace, every error with its position) and the
// XML form of a configuration (the exact document, reading it back, refusals).
#include "plat/BinaryParameter.h"
#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/EnumParameter.h"
#include "plat/Exception.h"
#include "plat/IntParameter.h"
#include "plat/S64Parameter.h"
#include "plat/StringParameter.h"
#include "plat/XmlConfig.h"
#include "plat/XmlReader.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string str(const plat::String& text) {
  return text.isNull() ? "<null>" : text.get();
}

TEST(XmlReader, BuildsTheTreeInDocumentOrder) {
  plat::XmlDocument document;
  ASSERT_TRUE(document.parse("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!-- c -->\n"
                             "<config v='2' note=\"a &amp; b &lt;&gt; &quot;&apos;\">\n"
                             "  <item name=\"first\">one</item>\n  mid &#65;&#x42;&#xe9; text\n"
                             "  <item name=\"second\"/><!-- c --><other/>\n</config>\n<!-- c -->\n",
                             "config"));
  const plat::XmlElement* root = document.root();
  EXPECT_STREQ(root->attribute("note"), "a & b <> \"'");
  EXPECT_EQ(root->childCount("item"), 2);
  EXPECT_STREQ(root->child("item", 1)->attribute("name"), "second");
  EXPECT_EQ(root->child("item", 2), nullptr);
  EXPECT_STREQ(root->child(nullptr, 2)->name(), "other");
  EXPECT_EQ(str(root->childText("item")), "one");
  ASSERT_EQ(root->nodes().size(), 4u);
  EXPECT_EQ(root->nodes()[0].element, root->child("item"));
  EXPECT_EQ(str(root->text()), "mid AB\xC3\xA9 text");
  ASSERT_TRUE(document.parse("<anything/>", nullptr)); // any root when none is named
  EXPECT_STREQ(document.root()->name(), "anything");
}

TEST(XmlReader, WhitespaceIsCondensedUnlessKept) {
  const char* text = "<t a=\" x\n\ty \">\n  <a>  two   words \n</a>\n  <b> </b>\n</t>";
  for (bool keep : {false, true}) {
    plat::setXmlKeepWhitespace(keep);
    plat::XmlDocument document;
    ASSERT_TRUE(document.parse(text, "t"));
    plat::setXmlKeepWhitespace(false);
    EXPECT_EQ(document.root()->nodes().size(), keep ? 5u : 2u);
    EXPECT_EQ(str(document.root()->childText("a")), keep ? "  two   words \n" : "two words");
    EXPECT_EQ(str(document.root()->childText("b")), keep ? " " : "");
    EXPECT_STREQ(document.root()->attribute("a"), " x\n\ty ");
  }
}

TEST(XmlReader, DeepNestingNeedsNoRecursion) {
  const int depth = 100000;
  std::string text;
  for (int i = 0; i < 2 * depth; ++i)
    text += i < depth ? "<a>" : "</a>";
  plat::XmlDocument document;
  ASSERT_TRUE(document.parse(text.c_str(), "a"));
  int levels = 0;
  for (const plat::XmlElement* element = document.root(); element; element = element->child("a"))
    ++levels;
  EXPECT_EQ(levels, depth);
}

TEST(XmlReader, ErrorsAndWhereTheyAre) {
  const char* unexpected = "Error: Unexpected token found";
  const char* entity = "Error: Unknown character entity";
  struct Case {
    std::string text;
    const char* message;
    int line;
    int column;
  } cases[] = {
      {"", "Error: No XML data", 1, 1},
      {"  \n ", "Error: No XML data", 2, 2},
      {"just text", "Warning: No XML tag found", 1, 1},
      {"<?xml version=\"1.0\"?>\n<!-- only -->\n", "Error: No elements found", 3, 1},
      {"<config>< a/></config>", "Error: Missing start tag name", 1, 9},
      {"<config></ ></config>", "Error: Missing end tag name", 1, 9},
      {"<config>\n <a></b></config>", "Error: Unmatched end tag", 2, 5},
      {"<config><a /b></config>", "Error: Unmatched clear tag end", 1, 12},
      {"<config/></config>", "Warning: Unmatched end tag", 1, 10},
      {"<!-- c -->\n  <Config/>", "Error: First Tag not found", 2, 3},
      {"<config>&bogus;</config>", entity, 1, 9},
      {"<config>&#xD800;</config>", entity, 1, 9},
      {"<config a='&nope;'/>", entity, 1, 12},
      {"<config a=1/>", unexpected, 1, 11},
      {"<config a=\"1\" a=\"2\"/>", unexpected, 1, 15},
      {"<config>\n  <a>", unexpected, 2, 6},
      {"<config>caf\xC3\xA9\xC3</config>", unexpected, 1, 13},
      {std::string("<config>\0</config>", 18), unexpected, 1, 9},
      {"<config/>trailing", unexpected, 1, 10},
      {"<config><![CDATA[x]]></config>", unexpected, 1, 9},
      {"<config><!-- never closed", unexpected, 1, 9},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    plat::XmlDocument document;
    EXPECT_FALSE(document.parse(c.text.data(), c.text.size(), "config"));
    EXPECT_STREQ(document.error().message(), c.message);
    EXPECT_EQ(document.error().line, c.line);
    EXPECT_EQ(document.error().column, c.column);
    EXPECT_EQ(document.root(), nullptr);
    EXPECT_TRUE(document.parse("<config/>", "config")); // a later success clears the error
    EXPECT_STREQ(document.error().message(), "No error");
  }
  EXPECT_STREQ(plat::xmlErrorMessage(plat::XmlError::fileNotFound), "Error: File not found");
}

const char* const loudness[] = {"Low", "Medium", "High", nullptr};

std::string document(const std::string& elements) {
  return "<?xml version=\"1.0\"?>\n<config>\n" + elements + "</config>\n";
}

TEST(XmlConfig, ExactDocument) {
  plat::Configuration group("Doc", nullptr);
  plat::BoolParameter flag("Flag", "A \"quoted\" flag & more", true, false, &group, "noPolicy,b");
  plat::IntParameter count("Count", plat::DescKey{"plat_param_log_keep_days"}, 30, false, &group, 0,
                           100);
  plat::EnumParameter level("Level", "Loudness", "Medium", loudness, false, &group);
  plat::StringParameter hidden("_Hidden", "Internal", "h", false, &group);
  count.setFromString("5", 10);
  level.setFromString("high", 10);
  EXPECT_EQ(std::string(plat::writeXmlConfig(group, false, true, nullptr).get()),
            document("<int    name=\"Count\"\n"
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
                     "</enum>\n"));
  std::string texts = plat::writeXmlConfig(group, true, false, nullptr).get();
  EXPECT_NE(
      texts.find("<int    name=\"Count\"\n        description=\"Keep log files for X days.\""),
      std::string::npos);
  EXPECT_NE(texts.find("<string name=\"_Hidden\""), std::string::npos);
}

TEST(XmlConfig, ReadingWhatWasWrittenGivesTheSameParameters) {
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
  count.setFromString("-1", 35);
  level.setFromString("HIGH", 30);
  text.setFromString("line one\nline \"two\"\t<end>", 10);
  big.setFromString("0000000000000001", 10);
  blob.setFromString("00FF", 10);
  hidden.setFromString("secret", 10);

  plat::Configuration read("Read", nullptr);
  plat::BoolParameter before("Before", "Dropped by reading", false, false, &read);
  plat::readXmlConfig(read, plat::writeXmlConfig(group, true, true, nullptr).get(), nullptr);
  EXPECT_EQ(read.findParam("Before"), nullptr);
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
  });
  EXPECT_EQ(dynamic_cast<plat::IntParameter*>(read.findParam("Count"))->min(), -10);
  EXPECT_FALSE(read.setParam("Flag", "0", 30)); // the noPolicy tag travels and still works
}

std::string readFailure(const std::string& text) {
  plat::Configuration group("Read", nullptr);
  try {
    plat::readXmlConfig(group, text.c_str(), nullptr);
  } catch (const plat::Exception& failure) {
    return failure.what();
  }
  return group.findParam("N") ? "<accepted>" : "<empty>";
}

TEST(XmlConfig, DocumentsThatAreRefused) {
  EXPECT_EQ(readFailure("<config>\n<bool></int>\n</config>"),
            "XML error 2:7 Error: Unmatched end tag");
  const std::string value = "<value data=\"1\" priority=\"0\"/>";
  const std::string notConfigurations[] = {
      "<bool description=\"d\">" + value + "</bool>",
      "<bool name=\"N\">" + value + "</bool>",
      "<bool name=\"N\" description=\"d\"></bool>",
      "<bool name=\"N\" description=\"d\"><value priority=\"0\"/></bool>",
      "<bool name=\"N\" description=\"d\"><value data=\"1\" priority=\"ten\"/></bool>",
      "<float name=\"N\" description=\"d\">" + value + "</float>",
      "<int name=\"N\" description=\"d\" min=\"low\">" + value + "</int>",
      "<enum name=\"N\" description=\"d\">" + value + "<opt/></enum>",
  };
  for (const std::string& element : notConfigurations)
    EXPECT_EQ(readFailure(document(element)), "Incompatible XML config") << element;
  // Names of types in any case, and an int without a range.
  EXPECT_EQ(readFailure(document("<INT name=\"N\" description=\"\">" + value + "</INT>")),
            "<accepted>");
}

} // namespace
