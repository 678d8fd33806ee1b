// Scrolls on Qt: the bars that the layout decides on, the wheel and a
// child's scrollIntoView moving the content, by lines of 30 units.
#include "QtForm.h"

#include "mui/MuScroll.h"
#include "mui/qt/MuScrollQt.h"

#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace mui::test {
namespace {

TEST_F(QtForm, AScrollShowsItsBarAndScrollsByWheelAndToAChild) {
  auto* scroll =
      static_cast<MuScrollQt*>(MuScroll::create(dialog.get(), "s", MuScroll::VerticalBar));
  MuLayout* column = MuLayout::create(scroll, "column", MuLayout::Vertical);
  LabelLeafQt* last = nullptr;
  for (int i = 0; i < 40; ++i)
    last = LabelLeafQt::create(column, nullptr, "A line of text");
  dialog->setVisible(true);
  processFor(20);
  QAbstractScrollArea* area = scroll->area();
  QWidget* content = MuCommonQt::of(column)->widget();
  EXPECT_TRUE(area->verticalScrollBar()->isVisible());
  EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
  EXPECT_EQ(content->width(), area->viewport()->width());
  EXPECT_EQ(area->verticalScrollBar()->maximum(), content->height() - area->viewport()->height());

  const QPoint centre = area->viewport()->rect().center();
  QWheelEvent down(centre, area->viewport()->mapToGlobal(centre), QPoint(), QPoint(0, -120),
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(area->viewport(), &down);
  const int lines = QApplication::wheelScrollLines();
  EXPECT_EQ(scroll->getScrollPosition(), Point(0, lines * Mui::toPixels(30)));
  EXPECT_EQ(content->y(), -lines * Mui::toPixels(30));

  last->scrollIntoView(Rect::at({0, 0}, last->getSize()));
  EXPECT_EQ(content->y() + content->height(), area->viewport()->height());
  dialog->setVisible(false);
}

TEST_F(QtForm, AScrollShowsTheWindowsBackgroundBehindItsContent) {
  auto* scroll =
      static_cast<MuScrollQt*>(MuScroll::create(dialog.get(), "s", MuScroll::VerticalBar));
  MuLayout::create(scroll, "column", MuLayout::Vertical);
  dialog->setVisible(true);
  processFor(20);
  const QImage shown = window()->grab().toImage();
  const QPoint inside = scroll->area()->viewport()->geometry().center();
  EXPECT_EQ(shown.pixelColor(scroll->area()->mapTo(window(), inside)),
            window()->palette().color(QPalette::Window));
  dialog->setVisible(false);
}

} // namespace
} // namespace mui::test
