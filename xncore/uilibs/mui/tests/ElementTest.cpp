// The element model on the headless binding: trees, paths, flags, styles,
// the driving interface, and how events reach observers.
#include "HeadlessForm.h"

#include "mui/MuSpacer.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace mui::test {
namespace {

using ElementTree = HeadlessForm;

// column
//   row "row"
//     leaf "name"       (row.name)
//     unnamed layout
//       leaf "allow"    (row.allow)
//   leaf "row"          (a second "row": paths take the first that leads to a hit)
//     -- a leaf, so "row.x" through it gives nothing
TEST_F(ElementTree, PathsFindTheFirstHitAndSkipUnnamedContainers) {
  MuLayout* column = MuLayout::create(dialog.get(), nullptr, MuLayout::Vertical);
  MuLayout* row = MuLayout::create(column, "row", MuLayout::Horizontal);
  TextLeaf* name = TextLeaf::create(row, "name", "Name");
  MuLayout* unnamed = MuLayout::create(row, nullptr, MuLayout::Horizontal);
  TextLeaf* allow = TextLeaf::create(unnamed, "allow", "Allow");
  TextLeaf* secondRow = TextLeaf::create(column, "row", "Other");
  TextLeaf* deny = TextLeaf::create(column, "deny", "Deny");

  struct Row {
    const char* path;
    MuElement* expected;
  } rows[] = {
      {"row", row},      {"row.name", name},    {"row.allow", allow}, {"allow", nullptr},
      {"deny", deny},    {"row.deny", nullptr}, {"x", nullptr},       {"", nullptr},
      {"row.", nullptr}, {"deny.x", nullptr},
  };
  for (const Row& r : rows)
    EXPECT_EQ(dialog->find(r.path), r.expected) << r.path;
  EXPECT_EQ(dialog->find(nullptr), dialog.get());
  EXPECT_EQ(deny->find(nullptr), deny);

  EXPECT_EQ(allow->fullName(), plat::String("row.allow"));
  EXPECT_EQ(secondRow->fullName(), plat::String("row"));
  EXPECT_TRUE(dialog->fullName().isNull());
  EXPECT_TRUE(column->fullName().isNull());
}

TEST_F(ElementTree, AnEmptyNameIsFoundOnlyWhereAChildHasIt) {
  MuLayout* column = MuLayout::create(dialog.get(), nullptr, MuLayout::Vertical);
  EXPECT_EQ(dialog->find(""), nullptr);
  TextLeaf* empty = TextLeaf::create(column, "", "Empty");
  EXPECT_EQ(dialog->find(""), empty);
}

TEST_F(ElementTree, ChildrenByIndexFromEitherEnd) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", MuLayout::Vertical);
  EXPECT_EQ(column->getChild(-1), nullptr);
  EXPECT_EQ(column->getChild(0), nullptr);
  TextLeaf* a = TextLeaf::create(column, "a", "A");
  TextLeaf* b = TextLeaf::create(column, "b", "B");
  EXPECT_EQ(column->getChild(0), a);
  EXPECT_EQ(column->getChild(-1), b);
  EXPECT_EQ(column->getChild(-2), a);
  EXPECT_EQ(column->getChild(-3), nullptr);
  EXPECT_EQ(column->getChild(2), nullptr);
  EXPECT_EQ(dialog->getChild(-1), column);
  EXPECT_EQ(a->parent(), column);
  EXPECT_EQ(a->rootDialog(), dialog.get());
}

TEST_F(ElementTree, LockedOrDisabledMeansNotOperableAndTheNativeWindowIsDisabled) {
  TextLeaf* leaf = TextLeaf::create(dialog.get(), "leaf", "Leaf");
  struct Step {
    void (*apply)(MuElement*);
    bool operable;
    bool peerEnabled;
    bool locked;
  } steps[] = {
      {[](MuElement* e) { e->setLocked(true); }, false, false, true},
      {[](MuElement* e) { e->setEnabled(true); }, false, false, true},
      {[](MuElement* e) { e->setEnabled(false); }, false, false, true},
      {[](MuElement* e) { e->setLocked(false); }, false, false, false},
      {[](MuElement* e) { e->setEnabled(true); }, true, true, false},
  };
  for (const Step& step : steps) {
    step.apply(leaf);
    EXPECT_EQ(leaf->isOperable(), step.operable);
    EXPECT_EQ(leaf->peer()->isEnabled(), step.peerEnabled);
    EXPECT_EQ(leaf->isLocked(), step.locked);
  }
}

TEST_F(ElementTree, ContainersReportALockedVisibleChild) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", MuLayout::Vertical);
  TextLeaf* leaf = TextLeaf::create(column, "leaf", "Leaf");
  EXPECT_FALSE(dialog->isLocked());
  leaf->setLocked(true);
  EXPECT_TRUE(column->isLocked());
  EXPECT_TRUE(dialog->isLocked());
  leaf->setVisible(false);
  EXPECT_FALSE(column->isLocked());
}

TEST_F(ElementTree, ShownNeedsTheWholeChainVisible) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", MuLayout::Vertical);
  TextLeaf* leaf = TextLeaf::create(column, "leaf", "Leaf");
  EXPECT_FALSE(leaf->isShown()); // the dialog starts hidden
  dialog->setVisible(true);
  EXPECT_TRUE(leaf->isShown());
  column->setVisible(false);
  EXPECT_TRUE(leaf->isVisible());
  EXPECT_FALSE(leaf->isShown());
}

TEST_F(ElementTree, DescribeShowsTheCommonStateAndEscapesTheLabel) {
  TextLeaf* leaf = TextLeaf::create(dialog.get(), "leaf", "One\\two\nthree\r");
  dialog->setVisible(true);
  leaf->setPosition({3, -4});
  leaf->setSize({50, 20});
  leaf->setLocked(true);
  EXPECT_STREQ(leaf->describe().get(), "shown 1\nenabled 1\nlocked 1\npos 3,-4\nsize 50,20\n"
                                       "label One\\\\two\\nthree\\r\n");
  MuLayout* row = MuLayout::create(dialog.get(), "row", MuLayout::Horizontal);
  row->setVisible(false);
  row->setEnabled(false);
  EXPECT_STREQ(row->describe().get(), "shown 0\nenabled 0\nlocked 0\npos 0,0\nsize 1,1\n"
                                      "element Layout\ntype Horizontal\n");
  EXPECT_STREQ(leaf->describeItems().get(), "");
  EXPECT_FALSE(leaf->perform("click", nullptr));
}

TEST_F(ElementTree, TypeWords) {
  MuLayout* layout = MuLayout::create(dialog.get(), "l", MuLayout::Vertical);
  MuSpacer* spacer = MuSpacer::create(layout, 1, 2);
  TextLeaf* leaf = TextLeaf::create(layout, "t", "T");
  EXPECT_STREQ(dialog->typeName(), "dialog");
  EXPECT_STREQ(layout->typeName(), "layout");
  EXPECT_STREQ(spacer->typeName(), "spacer");
  EXPECT_STREQ(leaf->typeName(), "element");
}

TEST_F(ElementTree, StylesAreInheritedFromTheNearestAncestorThatHasOne) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", MuLayout::Vertical);
  TextLeaf* leaf = TextLeaf::create(column, "leaf", "Leaf");
  EXPECT_EQ(&leaf->effectiveStyle(), &dialog->effectiveStyle());
  column->setFontSize(240);
  EXPECT_EQ(leaf->effectiveStyle().fontSize, 240);
  MuStyle bold;
  bold.fontWeight = 700;
  bold.textColour = plat::String("red");
  leaf->setStyle(bold);
  EXPECT_EQ(leaf->effectiveStyle().fontSize, 120);
  EXPECT_STREQ(leaf->effectiveStyle().textColour.get(), "red");
  EXPECT_TRUE(leaf->effectiveStyle().isBold());
}

TEST_F(ElementTree, StyleChangesReachChildrenBeforeTheirContainer) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", MuLayout::Vertical);
  TextLeaf* leaf = TextLeaf::create(column, "leaf", "Leaf");
  auto* columnPeer = MuCommonHeadless::of(column);
  leaf->peer()->clearCalls();
  columnPeer->clearCalls();
  column->setTextColour("blue");
  EXPECT_THAT(leaf->peer()->calls(), testing::ElementsAre("styleChanged"));
  EXPECT_THAT(columnPeer->calls(), testing::ElementsAre("styleChanged"));
  // Setting the same value again still tells.
  column->setTextColour("blue");
  EXPECT_EQ(columnPeer->calls().size(), 2u);
}

TEST_F(ElementTree, OverflowIsReportedWhereALeafIsShorterThanItsText) {
  struct Collect : OverflowReporter {
    std::vector<std::string> found;
    void report(MuElement* element, const char* message) override {
      found.push_back(std::string(element->name()) + ": " + message);
    }
  } reporter;
  TextLeaf* fits = TextLeaf::create(dialog.get(), "fits", "abc");
  TextLeaf* cut = TextLeaf::create(dialog.get(), "cut", "abc def");
  TextLeaf* hidden = TextLeaf::create(dialog.get(), "hidden", "abc def");
  hidden->setVisible(false);
  fits->setSize({21, 16});
  cut->setSize({21, 16}); // wraps to two lines of 16
  hidden->setSize({21, 16});
  dialog->checkOverflow(reporter);
  EXPECT_THAT(reporter.found, testing::ElementsAre("cut: Overflowing by 16 units"));
}

TEST_F(ElementTree, ScreenPositionAddsUpTheParents) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", MuLayout::Vertical);
  TextLeaf* leaf = TextLeaf::create(column, "leaf", "Leaf");
  dialog->setPosition({100, 200});
  column->setPosition({10, 20});
  leaf->setPosition({1, 2});
  EXPECT_EQ(leaf->getScreenPosition(), Point(111, 222));
}

TEST_F(ElementTree, SpacersHaveNoPeerAndKeepTheirGeometry) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", MuLayout::Vertical);
  MuSpacer* spacer = MuSpacer::create(column, 7, 9);
  EXPECT_EQ(spacer->common(), nullptr);
  spacer->setPosition({2, 3});
  spacer->setSize({30, 40});
  EXPECT_EQ(spacer->minWidth(0), 7);
  EXPECT_EQ(spacer->minHeight(1000), 9);
  EXPECT_STREQ(spacer->describe().get(), "2,3 30x40");
  spacer->setVisible(false);
  EXPECT_EQ(spacer->getSize(), Size(0, 0));
  spacer->setVisible(true);
  EXPECT_EQ(spacer->getSize(), Size(30, 40));
  // Operations that forward to a peer tolerate its absence.
  spacer->setFocus();
  spacer->setToolTip("tip");
  EXPECT_FALSE(spacer->hasFocus());
}

using ElementDeath = HeadlessForm;

TEST_F(ElementDeath, MisuseEndsInAnAssertionThatNamesTheExpression) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(
      {
        muLayoutFactory = nullptr;
        MuLayout::create(dialog.get(), "x", MuLayout::Vertical);
      },
      "muLayoutFactory");
  EXPECT_DEATH(
      {
        muDialogFactory = nullptr;
        MuDialog::create("d", "D", nullptr, 0, nullptr, nullptr);
      },
      "muDialogFactory");
  MuLayout* column = MuLayout::create(dialog.get(), "c", MuLayout::Vertical);
  TextLeaf* leaf = TextLeaf::create(dialog.get(), "leaf", "Leaf");
  EXPECT_DEATH(column->setChildLayout(leaf, 1, 1),
               "i != children.end\\(\\).*Element 'leaf' is not a child of 'c'");
  EXPECT_DEATH(column->removeChild(nullptr), "element");
  EXPECT_DEATH(
      {
        root.reset();
        Mui::instance();
      },
      "mui");
  EXPECT_DEATH(Mui::setInstance(nullptr), "mui_");
}

} // namespace
} // namespace mui::test
