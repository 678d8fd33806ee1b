// The root of the Qt binding and its peers on the offscreen platform:
// geometry, measuring, focus, tool tips, accessible names, mouse records,
// dialogs' keys and close box, and the glue that keeps exceptions out of Qt.
#include "QtForm.h"

#include "loc/LocaleParameter.h"
#include "loc/Localize.h"
#include "mui/MuSpacer.h"
#include "mui/headless/MuiHeadless.h"
#include "mui/qt/EventGlueQt.h"
#include "plat/Exception.h"

#include <gmock/gmock.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <string>
#include <vector>

namespace mui::test {
namespace {

using QtBinding = QtForm;

TEST_F(QtBinding, GeometryIsSetOnlyWhenItChangesAndReadsBackTheSame) {
  LabelLeafQt* leaf = LabelLeafQt::create(dialog.get(), "leaf", "Leaf");
  struct CountResizes : QObject {
    int resizes = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      resizes += event->type() == QEvent::Resize;
      return false;
    }
  } counter;
  window()->show();
  leaf->peer()->widget()->installEventFilter(&counter);
  leaf->setPosition({12, 34});
  leaf->setSize({56, 78});
  EXPECT_EQ(leaf->getPosition(), Point(12, 34));
  EXPECT_EQ(leaf->getSize(), Size(56, 78));
  EXPECT_EQ(leaf->peer()->widget()->geometry(), QRect(12, 34, 56, 78));
  const int resizes = counter.resizes;
  leaf->setSize({56, 78});
  leaf->setPosition({12, 34});
  EXPECT_EQ(counter.resizes, resizes);
  window()->hide();
}

TEST_F(QtBinding, TextWrapsTallerAsTheWidthShrinks) {
  LabelLeafQt* leaf = LabelLeafQt::create(
      dialog.get(), "leaf", "An administrator reads this long sentence in a narrow column.");
  const int oneLine = leaf->minHeight(INT_MAX);
  EXPECT_GT(oneLine, 0);
  EXPECT_EQ(leaf->minHeight(leaf->minWidth(0)), oneLine);
  int previous = oneLine;
  for (int width : {300, 200, 120, 60}) {
    const int height = leaf->minHeight(width);
    EXPECT_GE(height, previous) << width;
    previous = height;
  }
  EXPECT_GE(previous, 4 * oneLine);
  EXPECT_EQ(leaf->minHeight(0), 0);
  // A bigger style measures bigger.
  const int narrow = leaf->minWidth(0);
  leaf->setFontSize(240);
  EXPECT_GT(leaf->minWidth(0), narrow * 3 / 2);
}

TEST_F(QtBinding, DisablingTheFocusedWidgetMovesTheFocusFirst) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", MuLayout::Vertical);
  LabelLeafQt* first = LabelLeafQt::create(column, "first", "First");
  LabelLeafQt* second = LabelLeafQt::create(column, "second", "Second");
  first->setFocus();
  EXPECT_FALSE(first->hasFocus()); // not while the dialog is hidden
  dialog->setVisible(true);
  QApplication::setActiveWindow(window());
  first->setFocus();
  ASSERT_TRUE(first->hasFocus());
  first->setEnabled(false);
  EXPECT_FALSE(first->hasFocus());
  EXPECT_TRUE(second->hasFocus());
  dialog->setVisible(false);
}

TEST_F(QtBinding, ToolTipsShowTheirTextAndWrapWhenLong) {
  LabelLeafQt* leaf = LabelLeafQt::create(dialog.get(), "leaf", "Leaf");
  QWidget* widget = leaf->peer()->widget();
  leaf->setToolTip("Allow <b> & more");
  EXPECT_THAT(widget->toolTip().toStdString(), testing::HasSubstr("Allow &lt;b&gt; &amp; more"));
  EXPECT_THAT(widget->toolTip().toStdString(), testing::Not(testing::HasSubstr("width=")));
  leaf->setToolTip(std::string(200, 'x').c_str());
  EXPECT_THAT(widget->toolTip().toStdString(), testing::HasSubstr("width=\"300\""));
  leaf->setToolTip(nullptr);
  EXPECT_TRUE(widget->toolTip().isEmpty());
  EXPECT_EQ(widget->toolTipDuration(), 30000);
}

TEST_F(QtBinding, WidgetsAreNamedForAccessibility) {
  MuLayout* row = MuLayout::create(dialog.get(), "row", MuLayout::Horizontal);
  LabelLeafQt* labelled = LabelLeafQt::create(row, "allow", "Allow view-only");
  MuLayout* unnamed = MuLayout::create(row, nullptr, MuLayout::Horizontal);
  LabelLeafQt* nested = LabelLeafQt::create(unnamed, "deny", "");
  QWidget* widget = labelled->peer()->widget();
  EXPECT_EQ(widget->accessibleName(), "Allow view-only");
  EXPECT_EQ(widget->accessibleDescription(), "row.allow");
  EXPECT_EQ(widget->objectName(), "allow");
  EXPECT_EQ(nested->peer()->widget()->accessibleName(), "deny");
  EXPECT_EQ(MuCommonQt::of(row)->widget()->accessibleName(), "row");
  // Children stand in their parent's widget.
  EXPECT_EQ(nested->peer()->widget()->parentWidget(), MuCommonQt::of(unnamed)->widget());
  EXPECT_EQ(MuCommonQt::of(row)->widget()->parentWidget(), window());
}

struct MouseLog : xnutil::MouseCallback {
  std::vector<int> types;
  bool mouseEvent(const xnutil::MouseEvent& event) override {
    types.push_back(event.type);
    return false;
  }
};

TEST_F(QtBinding, AClickIsASingleClickOnlyOnceNoDoubleClickCanFollow) {
  MuLayout* area = MuLayout::create(dialog.get(), "area", MuLayout::Vertical);
  MouseLog log;
  area->setMouseCallback(&log);
  dialog->setVisible(true);
  area->setSize({100, 100});
  QWidget* widget = MuCommonQt::of(area)->widget();
  const int wait = QApplication::doubleClickInterval() + 100;

  QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
  EXPECT_THAT(log.types, testing::ElementsAre(0, 1));
  processFor(wait + 100);
  EXPECT_THAT(log.types, testing::ElementsAre(0, 1, 3));

  log.types.clear();
  QTest::mouseDClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
  processFor(wait + 100);
  EXPECT_THAT(log.types, testing::Not(testing::Contains(3)));
  EXPECT_THAT(log.types, testing::Contains(2));
  dialog->setVisible(false);
}

// The same tree, laid out by the same engine, gets the same rectangles on
// both bindings when no text is measured.
TEST_F(QtBinding, TreesWithoutTextGetTheHeadlessRectangles) {
  auto build = [](MuDialog* form) {
    std::vector<MuElement*> elements;
    MuLayout* column = MuLayout::create(form, "column", MuLayout::Vertical);
    MuLayout* row = MuLayout::create(column, "row", MuLayout::Horizontal);
    elements = {column, row};
    elements.push_back(MuSpacer::create(row, 30, 10));
    MuSpacer* stretch = MuSpacer::create(row, 0, 0);
    row->setChildLayout(stretch, MuLayout::Weighted, 1);
    elements.push_back(stretch);
    MuLayout* inner = MuLayout::create(row, "inner", MuLayout::Vertical);
    row->setChildLayout(inner, MuLayout::Natural | MuLayout::Centred, 1);
    elements.push_back(inner);
    elements.push_back(MuSpacer::create(inner, 20, 7));
    elements.push_back(MuSpacer::create(inner, 25, 7));
    MuLayout* bottom = MuLayout::create(column, "bottom", MuLayout::Horizontal);
    column->setChildLayout(bottom, MuLayout::Weighted | MuLayout::AtEnd, 1);
    elements.push_back(bottom);
    elements.push_back(MuSpacer::create(bottom, 40, 12));
    form->setVisible(true);
    form->setSize({300, 200});
    return elements;
  };
  auto rectangles = [](const std::vector<MuElement*>& elements) {
    std::vector<Rect> result;
    for (MuElement* element : elements)
      result.push_back(Rect::at(element->getPosition(), element->getSize()));
    return result;
  };
  const std::vector<Rect> onQt = rectangles(build(dialog.get()));
  dialog->setVisible(false);

  MuiHeadless headless;
  installHeadlessBinding(headless);
  const Size size{400, 300};
  std::unique_ptr<MuDialog> form(MuDialog::create("form", "Form", &size, 0, nullptr, nullptr));
  const std::vector<Rect> onHeadless = rectangles(build(form.get()));
  form.reset();
  installQtBinding(*root);
  EXPECT_EQ(onQt, onHeadless);
  // The last spacer fills the height of its row, whose own height is the column's rest.
  EXPECT_EQ(onQt.back(), Rect(0, 0, 40, onQt[onQt.size() - 2].height()));
  EXPECT_GT(onQt.back().height(), 12);
}

TEST_F(QtBinding, DensityFontsAndColours) {
  EXPECT_EQ(ppmmParameter.defaultValue(), 4); // the offscreen screen has 96 dots per inch
  EXPECT_EQ(Mui::metric(MetricDialogMargin), Mui::toPixels(22));
  MuStyle normal;
  const QFont base = root->font(normal);
  EXPECT_EQ(base.pixelSize(), root->messageFontHeight());
  MuStyle big;
  big.fontSize = 240;
  big.fontWeight = 700;
  big.fontFlags = MuStyle::Italic | MuStyle::Underline;
  const QFont bigFont = root->font(big);
  EXPECT_EQ(bigFont.pixelSize(), (base.pixelSize() * 240 + 60) / 120);
  EXPECT_TRUE(bigFont.bold());
  EXPECT_TRUE(bigFont.italic());
  EXPECT_TRUE(bigFont.underline());
  ppmmParameter.setInt(8, 10);
  EXPECT_EQ(root->font(normal).pixelSize(), 2 * base.pixelSize());

  EXPECT_EQ(MuiQt::colour("#102030"), QColor(0x10, 0x20, 0x30));
  EXPECT_EQ(MuiQt::colour("orange"), QColor(0xff, 0xa5, 0x00));
  EXPECT_EQ(MuiQt::colour("contentText"), QApplication::palette().color(QPalette::Text));
  EXPECT_EQ(MuiQt::colour("nonsense", "selectedBd"), QColor(0x66, 0xa7, 0xe8));
  EXPECT_FALSE(MuiQt::colour("nonsense").isValid());
  EXPECT_FALSE(MuiQt::colour("#12345").isValid());
}

struct Clicks : MuObserver {
  std::vector<std::string> names;
  std::function<void()> onClick;
  void clicked(MuElement* source) override {
    names.push_back(source->name());
    if (onClick)
      onClick();
  }
  void dialogClosed(MuDialog*) override { names.push_back("closed"); }
};

TEST_F(QtBinding, ReturnEscapeAndTheCloseBoxReachTheDialog) {
  LabelLeafQt* ok = LabelLeafQt::create(dialog.get(), "ok", "OK");
  LabelLeafQt* cancel = LabelLeafQt::create(dialog.get(), "cancel", "Cancel");
  dialog->setButton(MuDialog::DefaultButton, ok);
  dialog->setButton(MuDialog::CancelButton, cancel);
  Clicks clicks;
  dialog->addObserver(&clicks);
  dialog->setVisible(true);
  QTest::keyClick(window(), Qt::Key_Return);
  QTest::keyClick(window(), Qt::Key_Enter, Qt::KeypadModifier);
  QTest::keyClick(window(), Qt::Key_Escape);
  ok->setEnabled(false);
  QTest::keyClick(window(), Qt::Key_Return);
  window()->close();
  EXPECT_THAT(clicks.names, testing::ElementsAre("ok", "ok", "cancel", "closed"));
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(QtBinding, FailuresInObserversNeverPassThroughQt) {
  LabelLeafQt* ok = LabelLeafQt::create(dialog.get(), "ok", "OK");
  dialog->setButton(MuDialog::DefaultButton, ok);
  Clicks clicks;
  dialog->addObserver(&clicks);
  dialog->setVisible(true);

  // A refused operation is shown in a message box, and the program goes on.
  // Its button speaks the program's language.
  loc::Localize::instance().init({});
  loc::localeParameter.setFromString("zh_CN", 10);
  clicks.onClick = [] { throw plat::Exception("No such user"); };
  QString shown;
  QString button;
  QTimer::singleShot(0, [&] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      shown = box->text();
      button = box->button(QMessageBox::Ok)->text();
      box->accept();
    }
  });
  QTest::keyClick(window(), Qt::Key_Return);
  loc::localeParameter.reset(true);
  EXPECT_EQ(shown, "No such user");
  EXPECT_EQ(button, QString::fromUtf8("确定"));
  EXPECT_NO_THROW(rethrowFromQt());

  // Anything else leaves Qt's frames and is thrown where the loop takes over.
  clicks.onClick = [] { throw std::runtime_error("broken"); };
  QTest::keyClick(window(), Qt::Key_Return);
  EXPECT_THROW(rethrowFromQt(), std::runtime_error);
  EXPECT_NO_THROW(rethrowFromQt());
  dialog->setVisible(false);
}

} // namespace
} // namespace mui::test
