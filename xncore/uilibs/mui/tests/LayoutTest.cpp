// The layout engine with exact rectangles: each row is a tree, the size it is
// given, and the rectangles its children must get.
#include "HeadlessForm.h"

#include "mui/MuSpacer.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace mui::test {
namespace {

// A child of the layout under test: a spacer with fixed minima, or a text
// that wraps (width-for-height) when `text` is given.
struct Child {
  int minWidth = 0;
  int minHeight = 0;
  int mode = MuLayout::Natural;
  int size = 1;
  bool visible = true;
  const char* text = nullptr;
};

struct Row {
  const char* name;
  int orientation;
  int spacing;
  Size given;
  std::vector<Child> children;
  std::vector<Rect> expected; // of the visible children, in order
};

constexpr int V = MuLayout::Vertical;
constexpr int H = MuLayout::Horizontal;
constexpr int Fixed = MuLayout::Fixed;
constexpr int Weighted = MuLayout::Weighted;

Rect at(int x, int y, int w, int h) {
  return Rect::at({x, y}, {w, h});
}

const Row rows[] = {
    {"fixed, natural and weighted share the column",
     V,
     4,
     {50, 100},
     {{0, 0, Fixed, 10}, {0, 20}, {0, 0, Weighted, 1}},
     {at(0, 0, 50, 10), at(0, 14, 50, 20), at(0, 38, 50, 62)}},
    {"weights that don't divide evenly lose the remainder at the end",
     V,
     4,
     {10, 104},
     {{0, 0, Weighted, 1}, {0, 0, Weighted, 2}},
     {at(0, 0, 10, 33), at(0, 37, 10, 66)}},
    {"a hidden child leaves one gap, not two",
     H,
     5,
     {100, 20},
     {{10, 0}, {99, 0, Fixed, 30, false}, {20, 0}},
     {at(0, 0, 10, 20), at(15, 0, 20, 20)}},
    {"negative spare room collapses weighted children but keeps their gaps",
     V,
     2,
     {10, 25},
     {{0, 0, Fixed, 20}, {0, 0, Weighted, 1}, {0, 6}},
     {at(0, 0, 10, 20), at(0, 22, 10, 0), at(0, 24, 10, 6)}},
    {"minimum sizes larger than the room overrun the end",
     H,
     0,
     {30, 10},
     {{25, 0}, {25, 0}},
     {at(0, 0, 25, 10), at(25, 0, 25, 10)}},
    {"placements across the main axis",
     V,
     0,
     {100, 40},
     {{30, 10, Fixed | 0x10, 10},
      {30, 10, Fixed | 0x20, 10},
      {30, 10, Fixed | 0x30, 10},
      {30, 10, Fixed | 0x30, 10}},
     {at(0, 0, 30, 10), at(70, 10, 30, 10), at(35, 20, 30, 10), at(35, 30, 30, 10)}},
    {"a centred child that needs more than the room keeps the full extent",
     H,
     0,
     {40, 10},
     {{10, 15, 0x30}, {10, 5, 0x20}},
     {at(0, 0, 10, 10), at(10, 5, 10, 5)}},
    {"zero-size children take a gap like any other",
     H,
     3,
     {50, 8},
     {{0, 0}, {0, 0, Fixed, 0}, {4, 0}},
     {at(0, 0, 0, 8), at(3, 0, 0, 8), at(6, 0, 4, 8)}},
    {"wrapped text is measured at the width it gets",
     V,
     0,
     {28, 100},
     {{0, 0, 0, 1, true, "abcd efgh ijkl"}, {0, 0, Weighted, 1}},
     {at(0, 0, 28, 48), at(0, 48, 28, 52)}},
    {"a weighted text column at the start of the cross axis",
     H,
     0,
     {100, 60},
     {{0, 0, Weighted | 0x10, 1, true, "abcd efgh"}, {0, 0, Weighted | 0x10, 1, true, "ab"}},
     {at(0, 0, 50, 32), at(50, 0, 50, 16)}},
};

class LayoutRows : public HeadlessForm, public testing::WithParamInterface<Row> {};

TEST_P(LayoutRows, GivesTheExpectedRectangles) {
  const Row& row = GetParam();
  MuLayout* layout = MuLayout::create(dialog.get(), "l", row.orientation);
  layout->setSpacing(row.spacing);
  std::vector<MuElement*> visible;
  for (const Child& child : row.children) {
    MuElement* element = child.text
                             ? static_cast<MuElement*>(TextLeaf::create(layout, "t", child.text))
                             : MuSpacer::create(layout, child.minWidth, child.minHeight);
    layout->setChildLayout(element, child.mode, child.size);
    element->setVisible(child.visible);
    if (child.visible)
      visible.push_back(element);
  }
  layout->setSize(row.given);
  std::vector<Rect> got;
  for (MuElement* element : visible)
    got.push_back(Rect::at(element->getPosition(), element->getSize()));
  EXPECT_EQ(got, row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, LayoutRows, testing::ValuesIn(rows),
                         [](const testing::TestParamInfo<Row>& param) {
                           std::string name;
                           for (const char* p = param.param.name; *p; ++p) {
                             if (std::isalnum(static_cast<unsigned char>(*p)))
                               name += *p;
                           }
                           return name;
                         });

using Layout = HeadlessForm;

// One row of a form: a label and an edit-like text that stretches, with a
// button-like text pushed to the end; rows stacked in a column at 4 and 8 ppmm.
TEST_F(Layout, NestedRowsInAColumnScaleWithTheMetrics) {
  struct Scale {
    int ppmm;
    int gap;
  } scales[] = {{4, 8}, {8, 16}};
  for (const Scale& scale : scales) {
    SCOPED_TRACE(scale.ppmm);
    ppmmParameter.setInt(scale.ppmm, 10);
    MuiHeadless scaled;
    installHeadlessBinding(scaled);
    const Size size{300, 200};
    std::unique_ptr<MuDialog> form(MuDialog::create("f", "F", &size, 0, nullptr, nullptr));
    MuLayout* column = MuLayout::create(form.get(), "column", V);
    MuLayout* row = MuLayout::create(column, "row", H);
    TextLeaf* label = TextLeaf::create(row, "label", "Name", true);
    TextLeaf* edit = TextLeaf::create(row, "edit", "", true);
    row->setChildLayout(edit, Weighted, 1);
    TextLeaf* button = TextLeaf::create(column, "button", "OK", true);
    column->setChildLayout(button, 0x20, 1);
    column->setSize({200, 100});

    EXPECT_EQ(row->getSize(), Size(200, 16));
    EXPECT_EQ(label->getPosition(), Point(0, 0));
    EXPECT_EQ(label->getSize(), Size(28, 16));
    EXPECT_EQ(edit->getPosition(), Point(28 + scale.gap, 0));
    EXPECT_EQ(edit->getSize(), Size(200 - 28 - scale.gap, 16));
    EXPECT_EQ(button->getPosition(), Point(200 - 14, 16 + scale.gap));
    EXPECT_EQ(button->getSize(), Size(14, 16));
    EXPECT_EQ(column->minHeight(200), 16 + scale.gap + 16);
    EXPECT_EQ(column->minWidth(100), 28 + scale.gap);
    form.reset();
    installHeadlessBinding(*root);
  }
}

TEST_F(Layout, MinimaAlongAndAcrossTheMainAxis) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", V);
  column->setSpacing(4);
  EXPECT_EQ(column->minHeight(100), -4); // the parent that sums minima gets the gap back
  EXPECT_EQ(column->minWidth(100), 0);
  MuSpacer* fixed = MuSpacer::create(column, 40, 99);
  column->setChildLayout(fixed, Fixed, 10);
  MuSpacer::create(column, 30, 20);
  MuSpacer* weightOne = MuSpacer::create(column, 5, 7);
  column->setChildLayout(weightOne, Weighted, 1);
  MuSpacer* weightTwo = MuSpacer::create(column, 5, 30);
  column->setChildLayout(weightTwo, Weighted, 2);
  // total 10 + 20, unit max(7/1, 30/2) = 15, weights 3, gaps 3 * 4
  EXPECT_EQ(column->minHeight(100), 12 + 30 + 45);
  EXPECT_EQ(column->minWidth(100), 40);

  // A weighted wrapping text across a row: it gets its share of what is left.
  MuLayout* row = MuLayout::create(dialog.get(), "r", H);
  row->setSpacing(0);
  MuSpacer* lead = MuSpacer::create(row, 14, 3);
  TextLeaf* text = TextLeaf::create(row, "text", "abcd efgh ijkl");
  row->setChildLayout(text, Weighted, 1);
  EXPECT_EQ(row->minHeight(14 + 28), 48); // 28 wide: three lines
  EXPECT_EQ(row->minHeight(14 + 70), 32);
  EXPECT_EQ(row->minWidth(50), 14 + 98); // natural for the lead, the text's widest line
  lead->setVisible(false);
  EXPECT_EQ(row->minHeight(28), 48);
}

TEST_F(Layout, OverflowOfALayoutIsReportedOnTheChildThatPassesItsEnd) {
  struct Collect : OverflowReporter {
    std::vector<std::string> found;
    void report(MuElement* element, const char* message) override {
      found.push_back(std::string(element->typeName()) + ": " + message);
    }
  } reporter;
  MuLayout* row = MuLayout::create(dialog.get(), "r", H);
  row->setSpacing(2);
  MuSpacer::create(row, 25, 0);
  MuSpacer::create(row, 25, 0);
  row->setSize({40, 10});
  row->checkOverflow(reporter);
  EXPECT_THAT(reporter.found, testing::ElementsAre("spacer: Overflowing H layout by 12 units"));
}

TEST_F(Layout, MovingChildrenKeepsTheirModesAndTellsTheBinding) {
  MuLayout* row = MuLayout::create(dialog.get(), "r", H);
  row->setSpacing(0);
  MuSpacer* a = MuSpacer::create(row, 10, 0);
  MuSpacer* b = MuSpacer::create(row, 20, 0);
  MuSpacer* c = MuSpacer::create(row, 30, 0);
  row->setChildLayout(a, Fixed, 5);
  auto order = [&] {
    std::vector<MuElement*> children;
    for (int i = 0; i < row->childCount(); ++i)
      children.push_back(row->getChild(i));
    return children;
  };
  struct Step {
    MuElement* moved;
    int where;
    MuElement* reference;
    std::vector<MuElement*> expected;
  } steps[] = {
      {c, MuLayout::ToFront, nullptr, {c, a, b}}, {c, MuLayout::ToEnd, nullptr, {a, b, c}},
      {c, MuLayout::Before, a, {c, a, b}},        {c, MuLayout::After, b, {a, b, c}},
      {a, MuLayout::Before, a, {b, c, a}},        {b, MuLayout::After, nullptr, {c, a, b}},
  };
  auto* peer = MuCommonHeadless::of(row);
  for (const Step& step : steps) {
    peer->clearCalls();
    row->moveChild(step.moved, step.where, step.reference);
    EXPECT_EQ(order(), step.expected);
    EXPECT_EQ(peer->calls().front(), "orderChanged");
  }
  row->setSize({100, 10});
  EXPECT_EQ(a->getSize(), Size(5, 10));
  int mode = -1, size = -1;
  ASSERT_TRUE(row->childLayout(a, &mode, &size));
  EXPECT_EQ(mode, Fixed);
  EXPECT_EQ(size, 5);
}

TEST_F(Layout, SectionsAddTheSectionGapAndMayStretchWhatFollows) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", V);
  MuSpacer::create(column, 0, 10);
  MuSpacer* section = column->addSection(true);
  MuSpacer* after = MuSpacer::create(column, 0, 10);
  int mode = -1, size = -1;
  ASSERT_TRUE(column->childLayout(section, &mode, &size));
  EXPECT_EQ(mode, Fixed);
  EXPECT_EQ(size, Mui::metric(MetricSectionGap) - Mui::metric(MetricSpacing));
  ASSERT_TRUE(column->childLayout(after, &mode, &size));
  EXPECT_EQ(mode, Weighted);
  column->setSize({10, 100});
  // 10, a gap of 8, the section's 12, a gap of 8.
  EXPECT_EQ(after->getPosition(), Point(0, 38));
  EXPECT_EQ(after->getSize().height, 62);
}

TEST_F(Layout, RemovingAChildClosesTheGap) {
  MuLayout* row = MuLayout::create(dialog.get(), "r", H);
  row->setSpacing(0);
  MuSpacer* a = MuSpacer::create(row, 10, 0);
  MuSpacer::create(row, 20, 0);
  MuSpacer* c = MuSpacer::create(row, 30, 0);
  row->removeChild(a);
  row->setSize({100, 10});
  EXPECT_EQ(row->childCount(), 2);
  EXPECT_EQ(c->getPosition(), Point(20, 0));
  row->removeAll();
  EXPECT_EQ(row->childCount(), 0);
}

} // namespace
} // namespace mui::test
