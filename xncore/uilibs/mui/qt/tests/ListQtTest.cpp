// Lists on Qt: a tree view over the list's rows. Keys and presses in the
// view reach the list and raise the events of the headless binding; the
// view shows the list's selection, columns, headers and images.
#include "QtForm.h"

#include "io/SocketManager.h"
#include "mui/MuList.h"
#include "mui/qt/ListViewQt.h"
#include "mui/qt/MuListQt.h"
#include "mui/tests/EventLog.h"

#include <gmock/gmock.h>

#include <QColor>
#include <QFont>
#include <QHeaderView>
#include <QIcon>
#include <QTest>

namespace mui::test {
namespace {

class ListsQt : public QtForm {
protected:
  void SetUp() override {
    QtForm::SetUp();
    io::processSocketManager(); // the thread's timers
    list =
        static_cast<MuListQt*>(MuList::create(dialog.get(), "list", MuList::ShowHeaders, nullptr));
    list->addColumn(1, MuList::ImageColumn, "", 0);
    list->addColumn(2, MuList::TextColumn, "Name", 0);
    list->addRow(-1, "user", "alice");
    list->addRow(-1, "group", "staff");
    list->addRow(-1, "", "bob");
    list->addObserver(&log);
    dialog->setVisible(true);
    QApplication::setActiveWindow(window());
    list->setFocus();
  }
  void TearDown() override {
    dialog->setVisible(false);
    QtForm::TearDown();
  }
  int currentRow() const { return list->view()->currentIndex().row(); }
  /// The pixel row of a row's middle in the view's viewport.
  QPoint rowCentre(int row) const {
    return list->view()->visualRect(list->view()->model()->index(row, 1)).center();
  }

  MuListQt* list = nullptr;
  EventLog log;
};

TEST_F(ListsQt, KeysInTheViewMoveTheSelectionAndRaiseTheEvents) {
  ASSERT_TRUE(list->hasFocus());
  QWidget* view = list->view();
  QTest::keyClick(view, Qt::Key_Down);
  QTest::keyClick(view, Qt::Key_Down);
  EXPECT_EQ(list->getSelection(), 1);
  EXPECT_EQ(currentRow(), 1);
  EXPECT_TRUE(list->view()->selectionModel()->isRowSelected(1, QModelIndex()));
  QTest::keyClick(view, Qt::Key_B);
  QTest::keyClick(view, Qt::Key_Return); // the dialog's
  EXPECT_EQ(currentRow(), 2);
  EXPECT_THAT(log.take(), testing::ElementsAre("list changed", "list changed", "list changed"));
  QTest::keyClick(view, Qt::Key_Down); // past the end: cleared, told from the loop
  EXPECT_EQ(list->getSelection(), -1);
  EXPECT_FALSE(list->view()->selectionModel()->hasSelection());
  EXPECT_TRUE(log.take().empty());
  io::processSocketManager().timers().process();
  EXPECT_THAT(log.take(), testing::ElementsAre("list changed"));
}

TEST_F(ListsQt, PressesOnRowsSelectAndADoubleClickActivates) {
  QWidget* viewport = list->view()->viewport();
  QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, rowCentre(2));
  EXPECT_EQ(list->getSelection(), 2);
  QTest::mouseDClick(viewport, Qt::LeftButton, Qt::NoModifier, rowCentre(0));
  EXPECT_EQ(currentRow(), 0);
  EXPECT_THAT(log.take(), testing::ElementsAre("list changed", "list changed", "list activated"));
  list->setEnabled(false);
  QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, rowCentre(1));
  EXPECT_EQ(list->getSelection(), 0);
  EXPECT_TRUE(log.take().empty());
}

TEST_F(ListsQt, TheViewShowsColumnsHeadersAndImages) {
  list->setSize({300, 200});
  processFor(20);
  QTreeView* view = list->view();
  EXPECT_FALSE(view->isHeaderHidden());
  const int image = Mui::metric(MetricListImageSize);
  EXPECT_EQ(view->header()->sectionSize(0), image);
  EXPECT_EQ(view->header()->sectionSize(1), view->viewport()->width() - image);
  EXPECT_EQ(view->model()->headerData(1, Qt::Horizontal).toString(), "Name");
  const auto pixmap = [view, image](int row) {
    return view->model()->index(row, 0).data(Qt::DecorationRole).value<QIcon>().pixmap(image);
  };
  EXPECT_EQ(pixmap(0).size(), QSize(image, image));
  EXPECT_FALSE(pixmap(0).toImage() == pixmap(1).toImage()) << "user and group look alike";
  EXPECT_TRUE(pixmap(2).isNull());
  EXPECT_EQ(view->model()->index(2, 1).data().toString(), "bob");
}

TEST_F(QtForm, AListsCallbackStylesItsCellsAndRefusesRows) {
  struct Styler : MuList::Callback {
    bool isSelectable(MuList*, int row) override { return row != 1; }
    bool getCellStyle(MuList*, int row, int columnId, MuStyle* style) override {
      if (row != 0 || columnId != 5)
        return false;
      style->textColour = plat::String("red");
      style->fontWeight = 700;
      return true;
    }
  } styler;
  auto* list = static_cast<MuListQt*>(MuList::create(dialog.get(), "list", 0, &styler));
  list->addColumn(5, MuList::TextColumn, "", 0);
  list->addRow(-1, "styled");
  list->addRow(-1, "refused");
  const QModelIndex styled = list->view()->model()->index(0, 0);
  EXPECT_EQ(styled.data(Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
  EXPECT_TRUE(styled.data(Qt::FontRole).value<QFont>().bold());
  EXPECT_FALSE(list->view()->model()->index(1, 0).data(Qt::ForegroundRole).isValid());
  EXPECT_FALSE(list->view()->model()->flags(list->view()->model()->index(1, 0)) &
               Qt::ItemIsSelectable);
  EXPECT_TRUE(list->view()->isHeaderHidden());
}

} // namespace
} // namespace mui::test
