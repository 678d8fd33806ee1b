// Statics on Qt: a QLabel aligned as its type says, or a frameless read-only
// text browser for a selectable one; measures that leave no text cut off;
// the ellipsis of a single line; '&' shown as it is.
#include "QtForm.h"

#include "mui/MuStatic.h"

#include <QLabel>
#include <QScrollBar>
#include <QTextBrowser>

namespace mui::test {
namespace {

using StaticQt = QtForm;

constexpr const char* longText =
    "Members of this group may view the screen and control it from a distance.";

QLabel* labelOf(MuStatic* element) {
  return qobject_cast<QLabel*>(MuCommonQt::of(element)->widget());
}

TEST_F(StaticQt, EachTypeIsAlignedAsItSays) {
  const struct {
    int type;
    Qt::Alignment horizontal;
  } cases[] = {
      {MuStatic::Text, Qt::AlignLeft},
      {MuStatic::LeftText, Qt::AlignLeft},
      {MuStatic::CenteredText, Qt::AlignHCenter},
      {MuStatic::RightText, Qt::AlignRight},
      {MuStatic::Heading, Qt::AlignLeft},
      {MuStatic::Detail, Qt::AlignLeft},
  };
  for (const auto& c : cases) {
    MuStatic* element = MuStatic::create(dialog.get(), "s", "A & B", c.type);
    QLabel* label = labelOf(element);
    ASSERT_NE(label, nullptr) << c.type;
    EXPECT_EQ(label->alignment() & Qt::AlignHorizontal_Mask, c.horizontal) << c.type;
    EXPECT_EQ(label->text(), "A & B") << c.type;
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    dialog->removeChild(element);
  }
  MuStatic* text = MuStatic::create(dialog.get(), "t", "Users", MuStatic::Text);
  MuStatic* heading = MuStatic::create(dialog.get(), "h", "Users", MuStatic::Heading);
  EXPECT_TRUE(labelOf(heading)->font().bold());
  EXPECT_GT(labelOf(heading)->font().pixelSize(), labelOf(text)->font().pixelSize());
  EXPECT_GT(heading->minWidth(0), text->minWidth(0));
}

TEST_F(StaticQt, AWrappedTextGetsAllTheHeightItNeeds) {
  MuStatic* element = MuStatic::create(dialog.get(), "s", longText, MuStatic::Text);
  QLabel* label = labelOf(element);
  for (int width : {400, 200, 120, 80}) {
    const int height = element->minHeight(width);
    element->setSize({width, height});
    EXPECT_GE(height, label->heightForWidth(width)) << width;
    EXPECT_EQ(label->text(), longText);
  }
  element->setText("Bold now", true, false);
  EXPECT_TRUE(label->font().bold());
  EXPECT_EQ(label->text(), "Bold now");
  EXPECT_GE(element->minWidth(0), label->sizeHint().width());
}

TEST_F(StaticQt, ASingleLineEndsInAnEllipsisWhenItDoesNotFit) {
  MuStatic* element = MuStatic::create(dialog.get(), "s", "", MuStatic::Text);
  element->setText(longText, false, true);
  dialog->setVisible(true); // a hidden widget hears of its size only when shown
  QLabel* label = labelOf(element);
  const int height = element->minHeight(100);
  EXPECT_EQ(height, QFontMetrics(label->font()).height());
  element->setSize({element->minWidth(0), height});
  EXPECT_EQ(label->text(), longText);
  element->setSize({150, height});
  EXPECT_TRUE(label->text().endsWith(QChar(0x2026))) << label->text().toStdString();
  EXPECT_TRUE(QString(longText).startsWith(label->text().chopped(1) + " "));
  EXPECT_LE(QFontMetrics(label->font()).horizontalAdvance(label->text()), 150);
  EXPECT_FALSE(label->wordWrap());
  // The whole text still names the widget.
  EXPECT_EQ(label->accessibleName(), longText);
}

TEST_F(StaticQt, ASelectableTextIsAFramelessReadOnlyBrowserThatNeverScrolls) {
  MuStatic* element = MuStatic::create(dialog.get(), "s", longText, MuStatic::Selectable);
  auto* browser = qobject_cast<QTextBrowser*>(MuCommonQt::of(element)->widget());
  ASSERT_NE(browser, nullptr);
  EXPECT_TRUE(browser->isReadOnly());
  EXPECT_EQ(browser->frameShape(), QFrame::NoFrame);
  EXPECT_EQ(browser->toPlainText(), longText);
  EXPECT_TRUE(browser->textInteractionFlags() & Qt::TextSelectableByMouse);
  for (int width : {400, 200, 120}) {
    element->setSize({width, element->minHeight(width)});
    EXPECT_EQ(browser->verticalScrollBar()->maximum(), 0) << width;
  }
  element->setSize({element->minWidth(0), element->minHeight(element->minWidth(0))});
  EXPECT_EQ(browser->horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(browser->verticalScrollBar()->maximum(), 0);
  element->setText("Other", false, false);
  EXPECT_EQ(browser->toPlainText(), "Other");
}

} // namespace
} // namespace mui::test
