// Statics on the headless binding: headings and boldness that only grows,
// single-line text cut at a word with an ellipsis, describe(), and that a
// static raises no event whatever is done to it.
#include "EventCounter.h"
#include "HeadlessForm.h"

#include "mui/Ellipsis.h"
#include "mui/MuStatic.h"
#include "mui/headless/MuStaticHeadless.h"

#include <gmock/gmock.h>

#include <string>

namespace mui::test {
namespace {

using Static = HeadlessForm;

MuStaticHeadless* makeStatic(MuContainer* parent, const char* text, int type) {
  return static_cast<MuStaticHeadless*>(MuStatic::create(parent, "s", text, type));
}

TEST_F(Static, HeadingsAreBigAndBoldAndBoldnessOnlyGrows) {
  MuStatic* heading = makeStatic(dialog.get(), "Users", MuStatic::Heading);
  EXPECT_EQ(heading->effectiveStyle().fontWeight, 700);
  EXPECT_EQ(heading->effectiveStyle().fontSize, 140);
  heading->setText("x", true, false);
  EXPECT_EQ(heading->effectiveStyle().fontWeight, 700);
  EXPECT_EQ(heading->effectiveStyle().fontSize, 140);
  // (7 * 140 + 60) / 120 = 8, and one more for bold.
  EXPECT_EQ(heading->minWidth(0), 9);

  MuStatic* text = makeStatic(dialog.get(), "plain", MuStatic::Text);
  EXPECT_EQ(text->minWidth(0), 5 * 7);
  text->setText("x", true, false);
  EXPECT_EQ(text->effectiveStyle().fontWeight, 700);
  EXPECT_EQ(text->minWidth(0), 8);
  text->setText("y", false, false);
  EXPECT_EQ(text->effectiveStyle().fontWeight, 700);
  EXPECT_THAT(text->describe().get(), testing::HasSubstr("bold 1\n"));
}

TEST_F(Static, ShowsAndMeasuresItsTextAndRaisesNoEvent) {
  EventCounter counter;
  dialog->addObserver(&counter);
  MuStatic* element = makeStatic(dialog.get(), "One two", MuStatic::Text);
  MuCommonHeadless* peer = MuCommonHeadless::of(element);
  element->setText("Three four five", false, false);
  EXPECT_STREQ(peer->text(), "Three four five");
  EXPECT_STREQ(element->label(), "Three four five");
  EXPECT_THAT(peer->calls(), testing::Contains("setText Three four five"));
  EXPECT_EQ(element->minHeight(70), 32); // "Three four" and "five"
  element->setText("Three four five", false, true);
  EXPECT_EQ(element->minHeight(70), 16); // one line, however narrow
  for (const char* action : {"click", "select", "settext"})
    EXPECT_FALSE(element->perform(action, "1")) << action;
  EXPECT_EQ(counter.total, 0);
  dialog->removeObserver(&counter);
}

TEST_F(Static, ASingleLineTextEndsAtAWordWithAnEllipsis) {
  MuStaticHeadless* element = makeStatic(dialog.get(), "", MuStatic::Text);
  element->setText("Allow remote input", false, true);
  // Each code point is 7 pixels; the ellipsis is one code point.
  const struct {
    int width;
    const char* shown;
  } cases[] = {
      {18 * 7, "Allow remote input"}, {17 * 7, "Allow remote\u2026"},
      {13 * 7, "Allow remote\u2026"}, {12 * 7, "Allow\u2026"},
      {4 * 7, "All\u2026"},           {0, "\u2026"},
  };
  for (const auto& c : cases) {
    element->setSize({c.width, 16});
    EXPECT_EQ(element->shownText(), c.shown) << c.width;
  }
  element->setText("Allow remote input", false, false);
  element->setSize({4 * 7, 100});
  EXPECT_EQ(element->shownText(), "Allow remote input"); // wrapped, never cut
}

TEST(Ellipsis, CutsAtWordEndsThenAtCharacters) {
  // One pixel a byte, so that a UTF-8 sequence is wider than one code point.
  const TextMeasure bytes = [](std::string_view text) { return static_cast<int>(text.size()); };
  const struct {
    const char* text;
    int width;
    const char* shown;
  } cases[] = {
      {"", 0, ""},
      {"fits", 4, "fits"},
      {"two  spaces here", 14, "two  spaces\u2026"},
      {"two  spaces here", 13, "two\u2026"},
      {"\u00e9t\u00e9 long", 8, "\u00e9t\u00e9\u2026"},
      // A cut after four bytes would fit, but falls inside a sequence.
      {"\u00e9t\u00e9xyz", 7, "\u00e9t\u2026"},
      {"\u00e9t\u00e9x", 5, "\u00e9\u2026"},
      {"\u00e9t\u00e9x", 4, "\u2026"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(elideAtWordEnd(c.text, c.width, bytes), c.shown) << c.text << " at " << c.width;
}

TEST_F(Static, DescribesTypeAndBoldness) {
  const struct {
    int type;
    const char* word;
    int bold;
  } types[] = {{0, "Text", 0},    {1, "LeftText", 0}, {2, "CenteredText", 0}, {3, "RightText", 0},
               {4, "Heading", 1}, {5, "Detail", 0},   {6, "Selectable", 0}};
  for (const auto& t : types) {
    MuStatic* element = makeStatic(dialog.get(), "a\\b\nc", t.type);
    EXPECT_EQ(std::string(element->describe().get()),
              std::string("shown 0\nenabled 1\nlocked 0\npos 0,0\nsize 1,1\nlabel a\\\\b\\nc\n"
                          "element Static\ntype ") +
                  t.word + "\nbold " + std::to_string(t.bold) + "\n");
    EXPECT_STREQ(element->typeName(), "static");
    dialog->removeChild(element);
  }
}

TEST_F(Static, OnlyASelectableStaticTakesTheFocus) {
  dialog->setVisible(true);
  MuStatic* label = makeStatic(dialog.get(), "label", MuStatic::Text);
  MuStatic* selectable = makeStatic(dialog.get(), "copy me", MuStatic::Selectable);
  label->setFocus();
  EXPECT_FALSE(label->hasFocus());
  selectable->setFocus();
  EXPECT_TRUE(selectable->hasFocus());
}

} // namespace
} // namespace mui::test
