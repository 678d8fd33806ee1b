// The gallery on Qt at single and double density, grabbed offscreen. The grab
// must not be blank; every control must stand at the rectangle its layout gave
// it, inside its parent, with ink there, never over a neighbour and never
// narrower or lower than it measures; and each control that the Tab key
// reaches must show that it has the focus. With XN_SCREENSHOT_DIR set, the
// grabs are saved there for a person to look at: gallery-<ppmm>.png and
// gallery-<ppmm>-focus-<control>.png, in the language of LANGUAGE and LANG.
#include "gallery/GalleryForm.h"

#include "loc/Localize.h"
#include "mui/MuContainer.h"
#include "mui/MuFrame.h"
#include "mui/MuText.h"
#include "mui/MuiParameters.h"
#include "mui/qt/MuCommonQt.h"
#include "mui/qt/MuDialogQt.h"
#include "mui/qt/MuiQt.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QMap>
#include <QSet>
#include <QTest>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace gallery {
namespace {

using namespace mui;

struct Overflows : OverflowReporter {
  std::vector<std::string> found;
  void report(MuElement* element, const char* message) override {
    found.push_back(std::string(element->fullName().orEmpty()) + ": " + message);
  }
};

void processFor(int ms) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < ms)
    QApplication::processEvents(QEventLoop::AllEvents, 10);
}

// The leaves of the form that have a widget: the controls and statics.
void collectControls(MuElement* element, std::vector<MuElement*>& controls) {
  if (auto* container = dynamic_cast<MuContainer*>(element)) {
    for (int i = 0, n = container->childCount(); i < n; ++i)
      collectControls(container->getChild(i), controls);
  } else if (MuCommonQt::of(element)) {
    controls.push_back(element);
  }
}

// The commonest colour of `image`: the background of a form.
QRgb background(const QImage& image) {
  QMap<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      ++counts[image.pixel(x, y)];
  return std::max_element(counts.begin(), counts.end()).key();
}

// Pixels of `image` that aren't `paper`.
int ink(const QImage& image, QRgb paper) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      count += image.pixel(x, y) != paper;
  return count;
}

class GalleryLook : public testing::TestWithParam<int> {
protected:
  void SetUp() override {
    // In the desktop's languages, so that a person can look at each.
    loc::Localize::instance().init({});
    ppmmParameter.setInt(GetParam(), 10);
    root = std::make_unique<MuiQt>();
    installQtBinding(*root);
    form = std::make_unique<GalleryForm>();
    form->dialog()->setVisible(true);
    QApplication::setActiveWindow(window());
    processFor(50);
    collectControls(form->dialog(), controls);
  }
  void TearDown() override {
    form.reset();
    root.reset();
    ppmmParameter.unset(10, false);
  }

  QWidget* window() { return static_cast<MuDialogQt*>(form->dialog())->window(); }
  static QWidget* widgetOf(MuElement* element) { return MuCommonQt::of(element)->widget(); }
  QRect inWindow(MuElement* element) {
    QWidget* widget = widgetOf(element);
    return QRect(widget->mapTo(window(), QPoint(0, 0)), widget->size());
  }
  static std::string nameOf(MuElement* element) { return element->fullName().orEmpty(); }
  void save(const QImage& image, const std::string& suffix) {
    if (const char* dir = std::getenv("XN_SCREENSHOT_DIR")) {
      QDir().mkpath(QString::fromUtf8(dir));
      image.save(QStringLiteral("%1/gallery-%2%3.png")
                     .arg(QString::fromUtf8(dir))
                     .arg(GetParam())
                     .arg(QString::fromStdString(suffix)));
    }
  }

  std::unique_ptr<MuiQt> root;
  std::unique_ptr<GalleryForm> form;
  std::vector<MuElement*> controls;
};

TEST_P(GalleryLook, EveryControlStandsWhereItWasLaidOutWithRoomForItsContent) {
  const QImage grab = window()->grab().toImage();
  save(grab, "");
  const QRgb paper = background(grab);
  ASSERT_GT(ink(grab, paper), grab.width() * grab.height() / 50);
  ASSERT_GE(controls.size(), 30u);

  const QRect client(QPoint(0, 0), window()->size());
  for (MuElement* control : controls) {
    const std::string name = nameOf(control);
    QWidget* widget = widgetOf(control);
    const Point position = control->getPosition();
    const Size size = control->getSize();
    EXPECT_EQ(widget->geometry(), QRect(position.x, position.y, size.width, size.height)) << name;
    const QRect rect = inWindow(control);
    EXPECT_TRUE(client.contains(rect)) << name;
    EXPECT_TRUE(inWindow(control->parent()).contains(rect)) << name;
    // Statics wrap; the controls never get less than they measure.
    if (std::string(control->typeName()) != "static" &&
        std::string(control->typeName()) != "text") {
      EXPECT_GE(size.width, control->minWidth(size.height)) << name;
    }
    // The grab has device pixels: twice as many a side under a scale factor of 2.
    const qreal ratio = grab.devicePixelRatio();
    const QRect pixels((QPointF(rect.topLeft()) * ratio).toPoint(), rect.size() * ratio);
    EXPECT_GE(ink(grab.copy(pixels), paper), 10) << name;
  }
  for (std::size_t i = 0; i < controls.size(); ++i) {
    for (std::size_t j = i + 1; j < controls.size(); ++j)
      EXPECT_FALSE(inWindow(controls[i]).intersects(inWindow(controls[j])))
          << nameOf(controls[i]) << " and " << nameOf(controls[j]);
  }
  Overflows overflows;
  form->dialog()->checkOverflow(overflows);
  EXPECT_TRUE(overflows.found.empty()) << overflows.found.front();
}

TEST_P(GalleryLook, TheKeyboardsFocusShowsOnEveryControlItReaches) {
  window()->setFocus();
  QMap<QWidget*, QImage> unfocused;
  for (MuElement* control : controls)
    unfocused[widgetOf(control)] = widgetOf(control)->grab().toImage();
  QSet<std::string> reached;
  for (std::size_t step = 0; step < 2 * controls.size(); ++step) {
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : window(),
                    Qt::Key_Tab);
    processFor(5);
    MuElement* focused = form->dialog()->focusedElement();
    if (!focused || reached.contains(nameOf(focused)))
      continue;
    reached.insert(nameOf(focused));
    const QImage shown = widgetOf(focused)->grab().toImage();
    save(shown, "-focus-" + nameOf(focused));
    EXPECT_NE(shown, unfocused[widgetOf(focused)]) << nameOf(focused);
  }
  for (const char* name :
       {"column.top.buttons.column.plain.apply", "column.top.buttons.column.help",
        "column.top.checks.column.view", "column.top.checks.column.sso",
        "column.top.checks.column.files", "column.bottom.text.column.name",
        "column.bottom.text.column.level", "column.bottom.text.column.notes",
        "column.bottom.right.sliders.column.row.across", "buttons.layout.ok"})
    EXPECT_TRUE(reached.contains(name)) << name;
  // Disabled and locked controls, and radios after the first, are no tab stops.
  for (const char* name :
       {"column.top.buttons.column.states.disabled", "column.top.checks.column.locked",
        "column.top.checks.column.system", "column.bottom.text.column.disabled"})
    EXPECT_FALSE(reached.contains(name)) << name;
}

// The form's link shows the message, the message's link hides it, and OK
// closes the dialog as its close box would.
TEST_P(GalleryLook, LinksShowAndHideTheMessageAndOkCloses) {
  MuDialog* dialog = form->dialog();
  MuElement* message = form->message().frame();
  ASSERT_TRUE(message->isShown());
  EXPECT_TRUE(form->message().link()->perform("click", "0"));
  EXPECT_FALSE(message->isShown());
  EXPECT_TRUE(
      dialog->find("column.bottom.right.static.column.picture.markup")->perform("click", "0"));
  EXPECT_TRUE(message->isShown());
  EXPECT_TRUE(dialog->find("buttons.layout.ok")->perform("click", nullptr));
  EXPECT_FALSE(dialog->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Densities, GalleryLook, testing::Values(4, 8),
                         [](const testing::TestParamInfo<int>& density) {
                           return "ppmm" + std::to_string(density.param);
                         });

} // namespace
} // namespace gallery
