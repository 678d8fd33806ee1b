// Splitters on Qt: the mouse over a separator shows the resizing cursor and
// drags the pane before it, raising the events.
#include "QtForm.h"

#include "mui/MuSplitter.h"
#include "mui/tests/EventLog.h"

#include <QTest>

namespace mui::test {
namespace {

TEST_F(QtForm, DraggingASplittersSeparatorResizesThePane) {
  MuSplitter* splitter =
      MuSplitter::create(dialog.get(), "split", MuSplitter::SideBySide, MuSplitter::Wide, false);
  LabelLeafQt::create(splitter, "left", "Left");
  LabelLeafQt::create(splitter, "right", "Right");
  EventLog log;
  splitter->addObserver(&log);
  dialog->setVisible(true);
  processFor(20);
  QWidget* widget = MuCommonQt::of(splitter)->widget();
  const int first = splitter->getPaneSizes()[0];
  const QPoint separator(splitter->separatorPosition(0) + 2, 10);

  QTest::mouseMove(widget, separator);
  EXPECT_EQ(widget->cursor().shape(), Qt::SplitHCursor);
  QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, separator);
  QTest::mouseMove(widget, separator + QPoint(40, 0));
  QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, separator + QPoint(40, 0));
  EXPECT_EQ(splitter->getPaneSizes()[0], first + 40);
  EXPECT_EQ(MuCommonQt::of(splitter->getChild(1))->widget()->x(), first + 40 + 5);
  EXPECT_EQ(log.take(), std::vector<std::string>{"split changed"});
  // Panes show their parent's cursor unless they have their own.
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(widget, &leave);
  EXPECT_EQ(widget->cursor().shape(), Qt::ArrowCursor);
  dialog->setVisible(false);
}

} // namespace
} // namespace mui::test
