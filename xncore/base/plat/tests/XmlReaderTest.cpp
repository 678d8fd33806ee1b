// The XML reader: the tree it builds, the whitespace switch, and every error
// with its position.
#include "plat/XmlReader.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string str(const plat::String& text) {
  return text.isNull() ? "<null>" : text.get();
}

class KeepWhitespace {
public:
  explicit KeepWhitespace(bool keep) : previous_(plat::xmlKeepWhitespace()) {
    plat::setXmlKeepWhitespace(keep);
  }
  ~KeepWhitespace() { plat::setXmlKeepWhitespace(previous_); }

private:
  bool previous_;
};

TEST(XmlReader, BuildsTheTreeInDocumentOrder) {
  const char* text = "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n"
                     "<!-- a comment -->\n"
                     "<config version='2' note=\"a &amp; b &lt;&gt; &quot;&apos;\">\n"
                     "  <item name=\"first\">one</item>\n"
                     "  middle &#65;&#x42;&#xe9; text\n"
                     "  <item name=\"second\"/>\n"
                     "  <!-- skipped --><other>caf\xC3\xA9</other>\n"
                     "</config>\n"
                     "<!-- trailing -->\n";
  plat::XmlDocument document;
  ASSERT_TRUE(document.parse(text, "config"));
  EXPECT_EQ(document.error().code, plat::XmlError::none);
  const plat::XmlElement* root = document.root();
  ASSERT_NE(root, nullptr);
  EXPECT_STREQ(root->name(), "config");
  ASSERT_EQ(root->attributes().size(), 2u);
  EXPECT_EQ(str(root->attributes()[0].name), "version");
  EXPECT_STREQ(root->attribute("version"), "2");
  EXPECT_STREQ(root->attribute("note"), "a & b <> \"'");
  EXPECT_EQ(root->attribute("missing"), nullptr);

  EXPECT_EQ(root->childCount(), 3);
  EXPECT_EQ(root->childCount("item"), 2);
  EXPECT_EQ(root->childCount("none"), 0);
  ASSERT_NE(root->child("item", 1), nullptr);
  EXPECT_STREQ(root->child("item", 1)->attribute("name"), "second");
  EXPECT_EQ(root->child("item", 2), nullptr);
  EXPECT_STREQ(root->child(nullptr, 2)->name(), "other");
  EXPECT_EQ(str(root->childText("item")), "one");
  EXPECT_EQ(str(root->childText("other")), "caf\xC3\xA9");
  EXPECT_EQ(str(root->childText("none")), "<null>");

  const auto& nodes = root->nodes();
  ASSERT_EQ(nodes.size(), 4u);
  EXPECT_EQ(nodes[0].element, root->child("item", 0));
  EXPECT_EQ(nodes[1].element, nullptr);
  EXPECT_EQ(str(nodes[1].text), "middle AB\xC3\xA9 text");
  EXPECT_EQ(nodes[2].element, root->child("item", 1));
  EXPECT_STREQ(nodes[3].element->name(), "other");
  EXPECT_EQ(str(root->text()), "middle AB\xC3\xA9 text");
}

TEST(XmlReader, AnyRootWhenNoneIsNamed) {
  plat::XmlDocument document;
  ASSERT_TRUE(document.parse("<anything/>", nullptr));
  EXPECT_STREQ(document.root()->name(), "anything");
  EXPECT_EQ(document.root()->nodes().size(), 0u);
}

TEST(XmlReader, WhitespaceIsCondensedUnlessKept) {
  const char* text = "<t>\n  <a>  two   words \n</a>\n  <b> </b>\n</t>";
  {
    KeepWhitespace dropped(false);
    plat::XmlDocument document;
    ASSERT_TRUE(document.parse(text, "t"));
    EXPECT_EQ(document.root()->nodes().size(), 2u);
    EXPECT_EQ(str(document.root()->childText("a")), "two words");
    EXPECT_EQ(document.root()->child("b")->nodes().size(), 0u);
  }
  {
    KeepWhitespace kept(true);
    plat::XmlDocument document;
    ASSERT_TRUE(document.parse(text, "t"));
    EXPECT_EQ(document.root()->nodes().size(), 5u);
    EXPECT_EQ(str(document.root()->childText("a")), "  two   words \n");
    EXPECT_EQ(str(document.root()->childText("b")), " ");
  }
  EXPECT_FALSE(plat::xmlKeepWhitespace());
}

TEST(XmlReader, AttributeValuesKeepTheirWhitespace) {
  KeepWhitespace dropped(false);
  plat::XmlDocument document;
  ASSERT_TRUE(document.parse("<t a=\" x\n\ty \"/>", "t"));
  EXPECT_STREQ(document.root()->attribute("a"), " x\n\ty ");
}

TEST(XmlReader, DeepNestingNeedsNoRecursion) {
  std::string text;
  const int depth = 100000;
  for (int i = 0; i < depth; ++i)
    text += "<a>";
  for (int i = 0; i < depth; ++i)
    text += "</a>";
  plat::XmlDocument document;
  ASSERT_TRUE(document.parse(text.c_str(), "a"));
  int levels = 0;
  for (const plat::XmlElement* element = document.root(); element; element = element->child("a"))
    ++levels;
  EXPECT_EQ(levels, depth);
}

TEST(XmlReader, MessagesOfEveryCode) {
  const char* messages[] = {
      "No error",
      "Warning: Unmatched end tag",
      "Warning: No XML tag found",
      "Error: No XML data",
      "Error: Missing start tag name",
      "Error: Missing end tag name",
      "Error: Unmatched end tag",
      "Error: Unmatched clear tag end",
      "Error: Unexpected token found",
      "Error: No elements found",
      "Error: File not found",
      "Error: First Tag not found",
      "Error: Unknown character entity",
  };
  for (int code = 0; code < static_cast<int>(std::size(messages)); ++code)
    EXPECT_STREQ(plat::xmlErrorMessage(code), messages[code]);
}

TEST(XmlReader, ErrorsAndWhereTheyAre) {
  struct Case {
    std::string text;
    int code;
    int line;
    int column;
  } cases[] = {
      {"", plat::XmlError::noData, 1, 1},
      {"  \n ", plat::XmlError::noData, 2, 2},
      {"just text", plat::XmlError::warningNoTag, 1, 1},
      {"<?xml version=\"1.0\"?>\n<!-- only -->\n", plat::XmlError::noElements, 3, 1},
      {"<config>< a/></config>", plat::XmlError::missingStartTagName, 1, 9},
      {"<config></ ></config>", plat::XmlError::missingEndTagName, 1, 9},
      {"<config>\n <a></b></config>", plat::XmlError::unmatchedEndTag, 2, 5},
      {"<config><a /b></config>", plat::XmlError::unmatchedClearTagEnd, 1, 12},
      {"<config a=1/>", plat::XmlError::unexpectedToken, 1, 11},
      {"<config a=\"1\"b=\"2\"/>", plat::XmlError::unexpectedToken, 1, 14},
      {"<config a=\"1\" a=\"2\"/>", plat::XmlError::unexpectedToken, 1, 15},
      {"<config a=\"<\"/>", plat::XmlError::unexpectedToken, 1, 12},
      {"<config a=\"open/>", plat::XmlError::unexpectedToken, 1, 18},
      {"<config>&bogus;</config>", plat::XmlError::unknownEntity, 1, 9},
      {"<config>&amp</config>", plat::XmlError::unknownEntity, 1, 9},
      {"<config>&#xD800;</config>", plat::XmlError::unknownEntity, 1, 9},
      {"<config>&#0;</config>", plat::XmlError::unknownEntity, 1, 9},
      {"<config>&#x110000;</config>", plat::XmlError::unknownEntity, 1, 9},
      {"<config>&#12a;</config>", plat::XmlError::unknownEntity, 1, 9},
      {"<config a='&nope;'/>", plat::XmlError::unknownEntity, 1, 12},
      {"<other/>", plat::XmlError::firstTagNotFound, 1, 1},
      {"<!-- c -->\n  <Config/>", plat::XmlError::firstTagNotFound, 2, 3},
      {"<config/></config>", plat::XmlError::warningUnmatchedEndTag, 1, 10},
      {"</config>", plat::XmlError::warningUnmatchedEndTag, 1, 1},
      {"<config>\n  <a>", plat::XmlError::unexpectedToken, 2, 6},
      {"<config>\xFF</config>", plat::XmlError::unexpectedToken, 1, 9},
      {"<config>caf\xC3\xA9\xC3</config>", plat::XmlError::unexpectedToken, 1, 13},
      {std::string("<config>\0</config>", 18), plat::XmlError::unexpectedToken, 1, 9},
      {"<config/>trailing", plat::XmlError::unexpectedToken, 1, 10},
      {"text first <config/>", plat::XmlError::unexpectedToken, 1, 1},
      {"<!DOCTYPE x><config/>", plat::XmlError::unexpectedToken, 1, 1},
      {"<config><![CDATA[x]]></config>", plat::XmlError::unexpectedToken, 1, 9},
      {"<config><!-- never closed", plat::XmlError::unexpectedToken, 1, 9},
      {"<?xml version=\"1.0\"", plat::XmlError::unexpectedToken, 1, 1},
      {"<config", plat::XmlError::unexpectedToken, 1, 8},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    plat::XmlDocument document;
    EXPECT_FALSE(document.parse(c.text.data(), c.text.size(), "config"));
    EXPECT_EQ(document.error().code, c.code) << document.error().message();
    EXPECT_EQ(document.error().line, c.line);
    EXPECT_EQ(document.error().column, c.column);
    EXPECT_EQ(document.root(), nullptr);
  }
}

TEST(XmlReader, ASuccessfulParseClearsTheLastError) {
  plat::XmlDocument document;
  EXPECT_FALSE(document.parse("<config>", "config"));
  EXPECT_TRUE(document.parse("<config/>", "config"));
  EXPECT_EQ(document.error().code, plat::XmlError::none);
  EXPECT_STREQ(document.error().message(), "No error");
  EXPECT_FALSE(document.parse(nullptr, "config"));
  EXPECT_EQ(document.error().code, plat::XmlError::noData);
}

} // namespace
