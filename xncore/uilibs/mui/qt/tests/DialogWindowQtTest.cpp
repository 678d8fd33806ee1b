// Dialog windows on the Qt binding, with input taking the window system's
// path so that Qt's modality applies: modal runs as nested turns of the
// application loop, Qt's own quit requests, dragging by the background and
// hiding on a press elsewhere.
#define QTEST_QPA_MOUSE_HANDLING
#include "QtForm.h"

#include "mui/qt/MessageQueueQt.h"
#include "os/AppLoop.h"

#include <gmock/gmock.h>

#include <QTest>
#include <QTimer>
#include <QWindow>
#include <functional>
#include <string>
#include <vector>

namespace mui::test {
namespace {

class QtDialogs : public QtForm {
protected:
  void SetUp() override {
    QtForm::SetUp();
    os::setMessageQueue(&queue);
    loop = std::make_unique<os::AppLoop>();
  }
  void TearDown() override {
    loop.reset();
    os::setMessageQueue(nullptr);
    QtForm::TearDown();
  }

  MuDialog* makeDialog(const char* name, int style, MuDialog* parent) {
    const Size size{200, 120};
    return MuDialog::create(name, name, &size, style, parent, nullptr);
  }
  static QWindow* handle(MuDialog* form) {
    return static_cast<MuDialogQt*>(form)->window()->windowHandle();
  }
  /// Runs `step` from the loop once Qt has had a moment to show what was shown.
  static void soon(std::function<void()> step) { QTimer::singleShot(50, std::move(step)); }

  MessageQueueQt queue;
  std::unique_ptr<os::AppLoop> loop;
};

/// Records the names of clicked elements, and hides the dialog of a click
/// when it is the modal one.
struct Presses : MuObserver {
  std::vector<std::string> names;
  MuDialog* closes = nullptr;
  void handleEvent(MuElement* source, int event) override {
    if (event != EventClicked)
      return;
    names.push_back(source->name());
    if (closes && source->rootDialog() == closes)
      closes->setVisible(false);
  }
};

TEST_F(QtDialogs, AModalRunBlocksItsParentAndEndsWithTheButtonThatHidItsDialog) {
  dialog->setButton(MuDialog::DefaultButton, LabelLeafQt::create(dialog.get(), "main", "Main"));
  std::unique_ptr<MuDialog> modal(makeDialog("modal", MuDialog::CodeModal, dialog.get()));
  modal->setButton(MuDialog::DefaultButton, LabelLeafQt::create(modal.get(), "ok", "OK"));
  modal->setButton(MuDialog::CancelButton, LabelLeafQt::create(modal.get(), "cancel", "Cancel"));
  Presses presses;
  presses.closes = modal.get();
  dialog->addObserver(&presses);
  modal->addObserver(&presses);
  dialog->setVisible(true);
  processFor(50);

  bool blocked = false;
  soon([&] {
    QTest::keyClick(handle(dialog.get()), Qt::Key_Return);
    blocked = presses.names.empty();
    QTest::keyClick(handle(modal.get()), Qt::Key_Escape);
  });
  modal->setVisible(true);
  EXPECT_TRUE(blocked) << "the parent took a key during the modal run";
  EXPECT_THAT(presses.names, testing::ElementsAre("cancel"));
  EXPECT_FALSE(modal->isVisible());
  EXPECT_FALSE(modal->runningCodeModal());

  processFor(50);
  QTest::keyClick(handle(dialog.get()), Qt::Key_Return);
  EXPECT_THAT(presses.names, testing::ElementsAre("cancel", "main"));
}

TEST_F(QtDialogs, QtsQuitRequestsEndTheLoopOrTheModalRun) {
  const std::function<void()> requests[] = {
      [] { QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit)); },
      [] { emit qApp->lastWindowClosed(); },
  };
  for (const auto& request : requests) {
    soon(request);
    EXPECT_EQ(loop->run(), 0);

    std::unique_ptr<MuDialog> modal(makeDialog("modal", MuDialog::CodeModal, nullptr));
    soon(request);
    modal->setVisible(true);
    EXPECT_TRUE(modal->isVisible()) << "the run ended, not the dialog";
    EXPECT_FALSE(loop->stopRequested()) << "the modal run took the quit";
  }
}

TEST_F(QtDialogs, ADialogOutlivingTheDialogItWasMadeOverCanStillGo) {
  std::unique_ptr<MuDialog> child(makeDialog("child", MuDialog::WindowModal, dialog.get()));
  LabelLeafQt::create(child.get(), "label", "Left open");
  dialog->setVisible(true);
  child->setVisible(true);
  processFor(20);
  dialog.reset();
  EXPECT_FALSE(child->isVisible());
  child.reset();
}

TEST_F(QtDialogs, APressOnTheBackgroundDragsTheWindow) {
  LabelLeafQt* label = LabelLeafQt::create(dialog.get(), "label", "Drag me");
  dialog->setMoveCallback(MuDialog::moveCallbackExceptButtons());
  dialog->setPosition({100, 100});
  dialog->setVisible(true);
  processFor(50);
  QWidget* widget = label->peer()->widget();
  const QPoint start = widget->rect().center();
  QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, start);
  EXPECT_TRUE(dialog->isDragging());
  QTest::mouseMove(widget, start + QPoint(25, 15));
  // The window moved with the pointer, which stands over the same point of it.
  QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, start);
  EXPECT_FALSE(dialog->isDragging());
  EXPECT_EQ(window()->pos(), QPoint(125, 115));
}

TEST_F(QtDialogs, ADismissingPopupHidesOnAPressElsewhereOnly) {
  LabelLeafQt* outside = LabelLeafQt::create(dialog.get(), "outside", "Outside");
  std::unique_ptr<MuDialog> popup(
      makeDialog("popup", MuDialog::Popup | MuDialog::DismissOnOutsideClick, dialog.get()));
  LabelLeafQt* inside = LabelLeafQt::create(popup.get(), "inside", "Inside");
  dialog->setVisible(true);
  popup->setVisible(true);
  processFor(50);
  QTest::mouseClick(inside->peer()->widget(), Qt::LeftButton);
  EXPECT_TRUE(popup->isVisible());
  QTest::mouseClick(outside->peer()->widget(), Qt::LeftButton);
  EXPECT_FALSE(popup->isVisible());
}

} // namespace
} // namespace mui::test
