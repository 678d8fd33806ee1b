// The permissions editor on Qt, offscreen: a user's scenario through real
// clicks and keys gives the parameter text that the headless tests expect;
// and how the form, the add dialogs showing an error and the account picker
// with a search typed look at single and double density. A look grab must not
// be blank, every widget must lie inside its window, and nothing may
// overflow. With XN_SCREENSHOT_DIR set, the grabs are saved there as
// <what>-<ppmm>.png, for a person to look at.
//
// Named images are cached at the size of the first density that asked, so
// each density wants a process of its own, as CTest gives every case.
#include "cloudAuth/PermissionsSchemeCloudSso.h"
#include "io/SocketManager.h"
#include "mui/MuButton.h"
#include "mui/MuCheck.h"
#include "mui/MuList.h"
#include "mui/MuiParameters.h"
#include "mui/qt/MessageQueueQt.h"
#include "mui/qt/MuButtonQt.h"
#include "mui/qt/MuChoiceQt.h"
#include "mui/qt/MuCommonQt.h"
#include "mui/qt/MuDialogQt.h"
#include "mui/qt/MuEditQt.h"
#include "mui/qt/MuiQt.h"
#include "os/AppLoop.h"
#include "plat/TimerManager.h"
#include "smisc/NameResolverSystemAuth.h"
#include "smisc/PermissionsSchemeNtLogon.h"
#include "sui/tests/FormEditor.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace sui::test {
namespace {

const std::string sales = "550e8400-e29b-41d4-a716-446655440000";

class EditorQt : public testing::Test {
protected:
  void SetUp() override {
    io::processSocketManager();
    mui::ppmmParameter.setInt(density(), 10);
    root = std::make_unique<mui::MuiQt>();
    mui::installQtBinding(*root);
    os::setMessageQueue(&queue);
    loop = std::make_unique<os::AppLoop>();
    configuration.addString("Permissions", "Access list", "");
    editor = std::make_unique<FormEditor>(configuration);
    sysauth::nameResolver = &resolver;
  }
  void TearDown() override {
    sysauth::nameResolver = nullptr;
    editor.reset();
    settle();
    loop.reset();
    os::setMessageQueue(nullptr);
    root.reset();
    mui::ppmmParameter.unset(10, false);
  }
  virtual int density() { return 4; }

  void start(PermissionsScheme* scheme, const char* text) {
    configuration.setParam("Permissions", text, 10);
    editor->addScheme("scheme", scheme);
    editor->setScheme(scheme);
    show(editor->getDialog());
  }
  static QWidget* windowOf(mui::MuDialog* dialog) {
    return static_cast<mui::MuDialogQt*>(dialog)->window();
  }
  static void show(mui::MuDialog* dialog) {
    QApplication::setActiveWindow(windowOf(dialog));
    processFor(50);
  }
  /// Lets Qt and the loop's timers run for `ms` milliseconds.
  static void processFor(int ms) {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms) {
      QApplication::processEvents(QEventLoop::AllEvents, 10);
      settle();
    }
  }
  static void settle() { plat::TimerManager::get().process(); }
  mui::MuDialog* shownDialog(const char* name) {
    for (mui::MuDialog* dialog : root->dialogs()) {
      if (std::strcmp(dialog->name(), name) == 0 && dialog->isVisible())
        return dialog;
    }
    return nullptr;
  }
  template <class Element>
  static Element* at(mui::MuDialog* dialog, const char* path) {
    auto* element = dynamic_cast<Element*>(dialog->find(path));
    EXPECT_NE(element, nullptr) << path;
    return element;
  }
  static void click(mui::MuDialog* dialog, const char* path) {
    QWidget* widget = mui::MuCommonQt::of(dialog->find(path))->widget();
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, widget->rect().center());
    processFor(20);
  }
  static void type(mui::MuDialog* dialog, const char* path, const std::string& text) {
    QLineEdit* line = at<mui::MuEditQt>(dialog, path)->lineEdit();
    QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(line, QString::fromStdString(text));
  }
  std::string text() { return configuration.getString("Permissions").get(); }

  /// Grabs `dialog`'s window, saved as <what>-<ppmm>.png when asked, and
  /// checks that it shows something, holds its widgets and overflows nowhere.
  void look(mui::MuDialog* dialog, const char* what) {
    QWidget* window = windowOf(dialog);
    const QImage image = window->grab().toImage();
    if (const char* dir = std::getenv("XN_SCREENSHOT_DIR"))
      image.save(QDir(dir).filePath(QStringLiteral("%1-%2.png").arg(what).arg(density())));
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3)
      for (int x = 0; x < image.width(); x += 3)
        colours.insert(image.pixel(x, y));
    EXPECT_GT(colours.size(), 8) << what << ": a blank grab";
    for (QWidget* widget : window->findChildren<QWidget*>()) {
      if (!widget->isVisibleTo(window) || widget->isWindow())
        continue;
      EXPECT_TRUE(window->rect().contains(QRect(widget->mapTo(window, QPoint()), widget->size())))
          << what << ": " << widget->metaObject()->className() << " "
          << widget->accessibleName().toStdString();
    }
    struct Overflows : mui::OverflowReporter {
      std::vector<std::string> found;
      void report(mui::MuElement* element, const char* message) override {
        found.push_back(std::string(element->fullName().orEmpty()) + ": " + message);
      }
    } overflows;
    dialog->checkOverflow(overflows);
    EXPECT_TRUE(overflows.found.empty()) << what << ": " << overflows.found.front();
  }

  mui::MessageQueueQt queue;
  std::unique_ptr<os::AppLoop> loop;
  std::unique_ptr<mui::MuiQt> root;
  plat::Configuration configuration{"Form", nullptr};
  smisc::NameResolverSystemAuth resolver;
  std::unique_ptr<FormEditor> editor;
};

TEST_F(EditorQt, AGroupAddedAndEditedWithClicksAndKeysWritesTheTextOfTheHeadlessRun) {
  start(new cloudAuth::PermissionsSchemeCloudSso(editor.get(), "Permissions"), "");
  mui::MuDialog* form = editor->getDialog();
  click(form, "split.buttons.add");
  mui::MuDialog* add = shownDialog("cloudssoadd");
  ASSERT_NE(add, nullptr);
  show(add);
  type(add, "groupuuid", "not-a-uuid");
  QTest::keyClick(at<mui::MuEditQt>(add, "groupuuid")->lineEdit(), Qt::Key_Return);
  processFor(20);
  ASSERT_EQ(shownDialog("cloudssoadd"), add) << "an invalid UUID keeps the dialog open";
  EXPECT_TRUE(add->find("info")->isShown());
  type(add, "groupuuid", sales);
  type(add, "displayname", "Sales");
  QTest::keyClick(at<mui::MuEditQt>(add, "displayname")->lineEdit(), Qt::Key_Return);
  processFor(20);
  EXPECT_EQ(shownDialog("cloudssoadd"), nullptr);
  EXPECT_EQ(text(), sales + ":Sales:d");

  QComboBox* presets = at<mui::MuChoiceQt>(form, "settings.l.permset.choice")->comboBox();
  QTest::keyClick(presets, Qt::Key_Up);
  EXPECT_EQ(text(), sales + ":Sales:v");
  QTest::keyClick(presets, Qt::Key_End);
  EXPECT_EQ(text(), sales + ":Sales:s");
  click(form, "settings.l.permcustom.k.allow.check");
  click(form, "settings.l.permcustom.q.deny.check");
  EXPECT_EQ(text(), sales + ":Sales:ks!q");
  click(form, "split.buttons.remove");
  EXPECT_EQ(text(), "");
}

class EditorLookQt : public EditorQt, public testing::WithParamInterface<int> {
protected:
  int density() override { return GetParam(); }
};

TEST_P(EditorLookQt, FormDialogsAndPickerShowWholeAtBothDensities) {
  mui::MuDialog* form = editor->getDialog();
  start(new smisc::PermissionsSchemeNtLogon(editor.get()), "root:f,list:v,%adm:d!q");
  at<mui::MuList>(form, "split.list")->perform("select", "2");
  at<mui::MuChoice>(form, "settings.l.permset.choice")->perform("select", "4");
  processFor(50);
  look(form, "editor-form");

  // The picker runs modally: it is looked at, and closed, from inside its run.
  QTimer::singleShot(100, [&] {
    mui::MuDialog* picker = shownDialog("accountpicker");
    ASSERT_NE(picker, nullptr);
    show(picker);
    type(picker, "search", "ro");
    at<mui::MuButton>(picker, "add")->perform("click", nullptr);
    processFor(50);
    look(picker, "account-picker");
    at<mui::MuButton>(picker, "buttons.cancel")->perform("click", nullptr);
  });
  click(form, "split.buttons.add");

  // The picker's own way to the typed dialog.
  QTimer::singleShot(100, [&] {
    at<mui::MuButton>(shownDialog("accountpicker"), "buttons.typed")->perform("click", nullptr);
  });
  click(form, "split.buttons.add");
  mui::MuDialog* typed = shownDialog("systemauthadd");
  ASSERT_NE(typed, nullptr);
  show(typed);
  at<mui::MuChoice>(typed, "type")->perform("select", "1");
  type(typed, "name", "nobody");
  click(typed, "buttons.ok");
  look(typed, "system-add-error");
  click(typed, "buttons.cancel");

  start(new cloudAuth::PermissionsSchemeCloudSso(editor.get(), "Permissions"), "");
  click(form, "split.buttons.add");
  mui::MuDialog* cloud = shownDialog("cloudssoadd");
  ASSERT_NE(cloud, nullptr);
  show(cloud);
  type(cloud, "groupuuid", "550e8400-e29b-41d4");
  type(cloud, "displayname", "Sales");
  click(cloud, "buttons.ok");
  look(cloud, "cloud-add-error");
}

INSTANTIATE_TEST_SUITE_P(Densities, EditorLookQt, testing::Values(4, 8),
                         [](const testing::TestParamInfo<int>& density) {
                           return "ppmm" + std::to_string(density.param);
                         });

} // namespace
} // namespace sui::test
