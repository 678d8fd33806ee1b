// Frames on Qt: the widget of each type, the child's widget inside the
// frame's, the lines that a header and a footer draw, and a background that
// the frame fills and its children show through.
#include "QtForm.h"

#include "mui/MuFrame.h"
#include "mui/MuStatic.h"

#include <QFrame>
#include <QGroupBox>
#include <QImage>

namespace mui::test {
namespace {

using FrameQt = QtForm;

TEST_F(FrameQt, EachTypeHasItsWidgetAndHoldsItsChild) {
  const struct {
    int type;
    const char* className;
  } cases[] = {
      {MuFrame::Plain, "QWidget"},  {MuFrame::Titled, "QGroupBox"}, {MuFrame::Bordered, "QFrame"},
      {MuFrame::Header, "QWidget"}, {MuFrame::Footer, "QWidget"},
  };
  for (const auto& c : cases) {
    MuFrame* frame = MuFrame::create(dialog.get(), "f", "Tom & Jerry", c.type);
    LabelLeafQt* child = LabelLeafQt::create(frame, "child", "x");
    QWidget* widget = MuCommonQt::of(frame)->widget();
    EXPECT_STREQ(widget->metaObject()->className(), c.className) << c.type;
    EXPECT_EQ(child->peer()->widget()->parentWidget(), widget) << c.type;
    frame->setSize({200, 100});
    const Size margin = frame->margin();
    EXPECT_EQ(child->peer()->widget()->x(), margin.width) << c.type;
    if (c.type == MuFrame::Titled) {
      EXPECT_EQ(static_cast<QGroupBox*>(widget)->title(), "Tom && Jerry");
    }
    if (c.type == MuFrame::Bordered) {
      EXPECT_EQ(static_cast<QFrame*>(widget)->frameShape(), QFrame::Box);
    }
    dialog->removeChild(frame);
  }
}

TEST_F(FrameQt, HeaderAndFooterDrawTheirLine) {
  MuFrame* header = MuFrame::create(dialog.get(), "header", nullptr, MuFrame::Header);
  MuFrame* footer = MuFrame::create(dialog.get(), "footer", nullptr, MuFrame::Footer);
  header->setSize({40, 20});
  footer->setSize({40, 20});
  const QImage top = grabOf(header);
  const QImage bottom = grabOf(footer);
  const QColor background = window()->palette().color(QPalette::Window);
  EXPECT_EQ(top.pixelColor(20, 19), QColor(Qt::black));
  EXPECT_EQ(top.pixelColor(20, 0), background);
  EXPECT_EQ(bottom.pixel(20, 0), window()->palette().color(QPalette::Dark).rgb());
  EXPECT_EQ(bottom.pixelColor(20, 19), background);
}

TEST_F(FrameQt, ItsBackgroundFillsTheFrameBehindItsChildren) {
  MuFrame* frame = MuFrame::create(dialog.get(), "f", nullptr, MuFrame::Plain);
  MuStatic* text = MuStatic::create(frame, "text", "i", MuStatic::Text);
  frame->setBackgroundColour("#336699");
  frame->setSize({100, 60});
  EXPECT_EQ(text->getPosition(), Point(frame->margin().width, frame->margin().height));
  const QImage image = grabOf(frame);
  const QColor fill(0x33, 0x66, 0x99);
  EXPECT_EQ(image.pixelColor(1, 1), fill);
  // Inside the static, beside its narrow text, the frame's fill shows.
  const Point inside = text->getPosition().translate({text->getSize().width - 2, 2});
  EXPECT_EQ(image.pixelColor(inside.x, inside.y), fill);
}

} // namespace
} // namespace mui::test
