// Superboxes on Qt, with input on the window system's path: typing raises
// the change, the drop-down keys reach the owner, the popup opens under the
// text box and closes on Escape or a press elsewhere, Escape going on to the
// dialog only once the popup is closed.
#define QTEST_QPA_MOUSE_HANDLING
#include "QtForm.h"

#include "mui/MuSuperbox.h"
#include "mui/qt/MuSuperboxQt.h"
#include "mui/tests/EventLog.h"

#include <gmock/gmock.h>

#include <QTest>
#include <QWindow>

namespace mui::test {
namespace {

TEST_F(QtForm, ASuperboxOpensItsPopupUnderItsBoxAndClosesIt) {
  MuLayout* column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
  auto* box = static_cast<MuSuperboxQt*>(MuSuperbox::create(column, "find", "&Find:", nullptr, 60));
  LabelLeafQt* other = LabelLeafQt::create(column, "other", "Elsewhere");
  LabelLeafQt* cancel = LabelLeafQt::create(column, "cancel", "Cancel");
  dialog->setButton(MuDialog::CancelButton, cancel);
  struct Opener : EventLog {
    MuSuperbox* box = nullptr;
    void handleEvent(MuElement* source, int event) override {
      EventLog::handleEvent(source, event);
      if (source == box && event == EventClicked)
        box->showPopup(true);
    }
  } log;
  log.box = box;
  dialog->addObserver(&log);
  dialog->setVisible(true);
  QApplication::setActiveWindow(window());
  box->setFocus();
  processFor(20);
  QWindow* handle = window()->windowHandle();
  log.take();

  QTest::keyClick(handle, 'b');
  QTest::keyClick(handle, 'o');
  EXPECT_STREQ(box->getText().get(), "bo");
  QTest::keyClick(handle, Qt::Key_F4);
  ASSERT_TRUE(box->isPopupShown());
  EXPECT_THAT(log.take(), testing::ElementsAre("find changed", "find changed", "find clicked"));
  QWidget* popup = static_cast<MuDialogQt*>(box->getPopup())->window();
  QLineEdit* edit = box->lineEdit();
  EXPECT_EQ(popup->geometry(),
            QRect(edit->mapToGlobal(QPoint(0, edit->height())), QSize(edit->width(), 60)));

  QTest::keyClick(handle, Qt::Key_Escape);
  EXPECT_FALSE(box->isPopupShown());
  EXPECT_TRUE(log.take().empty()) << "the first Escape only closed the popup";
  QTest::keyClick(handle, Qt::Key_Escape);
  EXPECT_THAT(log.take(), testing::ElementsAre("cancel clicked"));

  QTest::keyClick(handle, Qt::Key_Down, Qt::AltModifier);
  ASSERT_TRUE(box->isPopupShown());
  QTest::mouseClick(other->peer()->widget(), Qt::LeftButton);
  EXPECT_FALSE(box->isPopupShown());
  box->setFocus();
  box->setText("carol");
  EXPECT_EQ(edit->selectedText(), "carol") << "a focused box selects the program's text";
  EXPECT_THAT(log.take(), testing::ElementsAre("find clicked"));
  dialog->setVisible(false);
}

} // namespace
} // namespace mui::test
