// Marked-up texts on Qt: a click on a link reaches the link callback, the Tab
// key goes from link to link and Return follows the focused one, the text
// fits the height it measured, and links are painted in the link colour.
#include "../../tests/FollowedLinks.h"
#include "QtForm.h"

#include "mui/MuText.h"
#include "mui/qt/MarkupViewQt.h"
#include "mui/qt/MuTextQt.h"

#include <QLineEdit>
#include <QTest>
#include <string>
#include <vector>

namespace mui::test {
namespace {

class TextQt : public QtForm {
protected:
  MuTextQt* make(MuContainer* parent, const char* markup) {
    return static_cast<MuTextQt*>(MuText::create(parent, "text", markup, &followed, false));
  }
  static QPoint middleOf(const Rect& rect) {
    return QPoint((rect.tl.x + rect.br.x) / 2, (rect.tl.y + rect.br.y) / 2);
  }
  FollowedLinks followed;
};

constexpr const char* twoLinks = "Read <a href=\"https://example.org/help\">the help</a> or "
                                 "<a href=\"app://about\">about</a> this.";

TEST_F(TextQt, AClickOnALinkFollowsIt) {
  MuTextQt* text = make(dialog.get(), twoLinks);
  text->setSize({400, text->minHeight(400)});
  dialog->setVisible(true);
  const MarkupRuns& runs = text->view()->laidOut();
  ASSERT_EQ(runs.runs.size(), 5u);
  QTest::mouseClick(text->view(), Qt::LeftButton, Qt::NoModifier, middleOf(runs.runs[3].rect));
  QTest::mouseClick(text->view(), Qt::LeftButton, Qt::NoModifier, middleOf(runs.runs[0].rect));
  QTest::mouseClick(text->view(), Qt::LeftButton, Qt::NoModifier, middleOf(runs.runs[1].rect));
  EXPECT_EQ(followed.urls, (std::vector<std::string>{"app://about", "https://example.org/help"}));
  EXPECT_EQ(text->view()->accessibleName(), "Read the help or about this.");
  dialog->setVisible(false);
}

TEST_F(TextQt, TheTabKeyGoesFromLinkToLinkAndReturnFollowsTheFocusedOne) {
  MuLayout* column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
  MuTextQt* plain = make(column, "No links here.");
  MuTextQt* text = make(column, twoLinks);
  auto* after = new QLineEdit(MuCommonQt::of(column)->widget());
  QWidget::setTabOrder(text->view(), after);
  EXPECT_EQ(plain->view()->focusPolicy(), Qt::NoFocus);
  dialog->setVisible(true);
  QApplication::setActiveWindow(window());
  ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
  after->setFocus();
  QTest::keyClick(after, Qt::Key_Tab); // round to the text, onto its first link
  ASSERT_TRUE(text->view()->hasFocus());
  EXPECT_EQ(text->view()->focusedLink(), 1);
  QTest::keyClick(text->view(), Qt::Key_Tab);
  EXPECT_EQ(text->view()->focusedLink(), 3);
  QTest::keyClick(text->view(), Qt::Key_Return);
  EXPECT_EQ(followed.urls, std::vector<std::string>{"app://about"});
  QTest::keyClick(text->view(), Qt::Key_Left);
  EXPECT_EQ(text->view()->focusedLink(), 1);
  QTest::keyClick(text->view(), Qt::Key_Space);
  EXPECT_EQ(followed.urls.back(), "https://example.org/help");
  QTest::keyClick(text->view(), Qt::Key_Tab);
  QTest::keyClick(text->view(), Qt::Key_Tab); // from the last link out of the text
  EXPECT_TRUE(after->hasFocus());
  EXPECT_EQ(text->view()->focusedLink(), -1);
  dialog->setVisible(false);
}

TEST_F(TextQt, TheTextFitsTheHeightItMeasuresAndLinksHaveTheLinkColour) {
  MuTextQt* text = make(dialog.get(), "");
  text->setText("<div style=\"text-align:center\">A paragraph long enough to wrap over "
                "several lines of a narrow column</div><div><a href=\"x\">link</a></div>");
  for (int width : {300, 160, 90}) {
    const int height = text->minHeight(width);
    text->setSize({width, height});
    const MarkupRuns& runs = text->view()->laidOut();
    for (const MarkupRun& run : runs.runs) {
      EXPECT_LE(run.rect.br.y, height) << width;
      EXPECT_LE(run.rect.br.x, width) << width;
      EXPECT_GE(run.rect.tl.x, 0) << width;
    }
  }
  EXPECT_GE(text->minWidth(0), text->view()->laidOut().runs.front().rect.width());
  const MarkupRun link = text->view()->laidOut().runs.back();
  const QImage image = text->view()->grab().toImage();
  // Glyphs are smoothed: the ink is of the link's hue, not always its exact colour.
  const QColor linkColour = text->view()->palette().color(QPalette::Link);
  ASSERT_GT(linkColour.blue() - linkColour.red(), 100);
  int bluish = 0;
  int elsewhere = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const bool blue = qBlue(image.pixel(x, y)) - qRed(image.pixel(x, y)) > 60;
      (link.rect.contains({x, y}) ? bluish : elsewhere) += blue;
    }
  }
  EXPECT_GT(bluish, 5);
  EXPECT_EQ(elsewhere, 0);
}

} // namespace
} // namespace mui::test
