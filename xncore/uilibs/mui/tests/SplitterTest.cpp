// Splitters on the headless binding: the panes' places and the limits that
// keep the later panes at their least sizes, the measures, the separators,
// and dragging a separator.
#include "HeadlessForm.h"

#include "mui/MuSpacer.h"
#include "mui/MuSplitter.h"
#include "mui/headless/MuSplitterHeadless.h"
#include "mui/tests/EventLog.h"

#include <gmock/gmock.h>

namespace mui::test {
namespace {

class Splitters : public HeadlessForm {
protected:
  /// A splitter side by side of panes with the least widths `minima`.
  MuSplitterHeadless* makeSplitter(std::initializer_list<int> minima, bool fixed = false,
                                   int style = MuSplitter::Wide) {
    auto* splitter = static_cast<MuSplitterHeadless*>(
        MuSplitter::create(dialog.get(), "split", MuSplitter::SideBySide, style, fixed));
    splitter->addObserver(&log);
    for (int minimum : minima)
      MuSpacer::create(splitter, minimum, 10 * minimum);
    return splitter;
  }
  /// Where each pane stands along the axis and how wide it is.
  static std::vector<std::pair<int, int>> spans(MuSplitter* splitter) {
    std::vector<std::pair<int, int>> result;
    for (int i = 0; i < splitter->childCount(); ++i) {
      MuElement* pane = splitter->getChild(i);
      result.emplace_back(pane->getPosition().x, pane->getSize().width);
    }
    return result;
  }
  using Spans = std::vector<std::pair<int, int>>;

  EventLog log;
};

TEST_F(Splitters, APaneStartsAtItsLeastSizeAndTheLastTakesTheRest) {
  MuSplitterHeadless* splitter = makeSplitter({30, 40, 20});
  EXPECT_THAT(splitter->getPaneSizes(), testing::ElementsAre(30, 40, 20));
  EXPECT_EQ(log.take().size(), 6u) << "two events for each pane added";
  splitter->setSize({200, 50});
  EXPECT_EQ(spans(splitter), (Spans{{0, 30}, {35, 40}, {80, 120}}));
  EXPECT_EQ(splitter->getChild(1)->getSize().height, 50);
  EXPECT_THAT(splitter->getSeparatorPositions(), testing::ElementsAre(30, 75));
  EXPECT_EQ(splitter->indexAt(32), 0);
  EXPECT_EQ(splitter->indexAt(35), -1);
  EXPECT_EQ(splitter->indexAt(77), 1);

  splitter->setPaneVisible(false, 1);
  EXPECT_EQ(spans(splitter)[2], std::make_pair(35, 165));
  EXPECT_THAT(splitter->getPaneSizes(), testing::ElementsAre(30, 0, 20));
  EXPECT_EQ(splitter->separatorThickness(1), 0);
  EXPECT_EQ(splitter->separatorPosition(1), 30);
  EXPECT_DEATH(splitter->separatorPosition(2), "index < \\(int\\)children.size\\(\\) -1");
  EXPECT_DEATH(splitter->separatorThickness(-1), "index >= 0");
  EXPECT_DEATH(splitter->separatorThickness(2), "index < \\(int\\)children.size\\(\\) - 1");
}

TEST_F(Splitters, WhileShownAPaneGivesUpRoomForTheLeastSizesAfterIt) {
  struct Row {
    bool shown;
    bool fixed;
    int total;
    Spans spans;
  } rows[] = {
      {true, false, 100, {{0, 65}, {70, 30}}}, // 100 - 30 - separator
      {false, false, 100, {{0, 90}, {95, 5}}}, // hidden: nothing is cut
      {true, true, 100, {{0, 90}, {95, 5}}},   // fixed: the program's sizes hold
      {true, false, 60, {{0, 90}, {95, -35}}}, // too small for the minima
      {true, false, 200, {{0, 90}, {95, 105}}},
  };
  for (const Row& row : rows) {
    MuSplitterHeadless* splitter = makeSplitter({30, 30}, row.fixed);
    splitter->setPaneSize(90, 0);
    dialog->setVisible(row.shown);
    log.take();
    splitter->setSize({row.total, 50});
    EXPECT_EQ(spans(splitter), row.spans) << row.total << " " << row.shown << row.fixed;
    const bool cut = row.spans[0].second != 90;
    EXPECT_EQ(splitter->getPaneSizes()[0], row.spans[0].second);
    EXPECT_EQ(log.take().size(), cut ? 1u : 0u);
    dialog->setVisible(false);
    dialog->removeChild(splitter);
  }
}

TEST_F(Splitters, MeasuresAddThePanesAlongAndTakeTheLargestAcross) {
  MuSplitterHeadless* loose = makeSplitter({30, 40});
  loose->setPaneSizes(0, 20, 70);
  EXPECT_EQ(loose->minWidth(0), 70 + 40 + 5);
  EXPECT_EQ(loose->minHeight(0), 400) << "the tallest pane";
  MuSplitterHeadless* fixed = makeSplitter({30, 40}, true, MuSplitter::Lined);
  fixed->setPaneSizes(0, 20, 70);
  EXPECT_EQ(fixed->minWidth(0), 20 + 40 + 3);
  EXPECT_EQ(fixed->getPaneSizes()[0], 70);
  fixed->setPaneSize(5, 0);
  EXPECT_EQ(fixed->getPaneSizes()[0], 20);

  auto* column = static_cast<MuSplitterHeadless*>(
      MuSplitter::create(dialog.get(), "col", MuSplitter::Stacked, MuSplitter::Narrow, true));
  TextLeaf::create(column, "a", "short");
  TextLeaf::create(column, "b", "a longer text");
  column->setSize({300, 200});
  EXPECT_STREQ(column->describe().get(), "shown 0\nenabled 1\nlocked 0\npos 0,0\nsize 300,200\n"
                                         "element Splitter\n\n");
  EXPECT_EQ(column->minWidth(0), 7 * 13) << "the widest pane across";
  EXPECT_GT(column->minHeight(0), 16 + 16 + 3) << "measured when the splitter was 1 wide";
  column->contentChanged();
  EXPECT_EQ(column->minHeight(0), 16 + 16 + 3);
}

TEST_F(Splitters, DraggingASeparatorResizesThePaneBeforeIt) {
  MuSplitterHeadless* splitter = makeSplitter({30, 30});
  dialog->setVisible(true);
  splitter->setSize({200, 50});
  log.take();
  splitter->moveMouse({31, 5});
  EXPECT_TRUE(splitter->showsResizeCursor());
  splitter->moveMouse({10, 5});
  EXPECT_FALSE(splitter->showsResizeCursor());

  splitter->drag({31, 5}, {{61, 5}, {81, 9}});
  EXPECT_THAT(splitter->getPaneSizes(), testing::ElementsAre(80, 30));
  EXPECT_EQ(spans(splitter)[1], std::make_pair(85, 115));
  EXPECT_EQ(log.take().size(), 2u);
  EXPECT_FALSE(splitter->isDragging());
  EXPECT_EQ(splitter->hoverIndex(), -1);
  EXPECT_THAT(MuCommonHeadless::of(splitter)->calls(),
              testing::IsSupersetOf({"captureMouse 1", "captureMouse 0"}));

  splitter->drag({82, 5}, {{0, 5}}); // not below the least size
  EXPECT_EQ(splitter->getPaneSizes()[0], 30);
  splitter->drag({32, 5}, {{400, 5}}); // nor past the next pane's
  EXPECT_EQ(splitter->getPaneSizes()[0], 200 - 30 - 5);
  splitter->drag({10, 5}, {{50, 5}}); // not on a separator
  EXPECT_EQ(splitter->getPaneSizes()[0], 165);
}

} // namespace
} // namespace mui::test
