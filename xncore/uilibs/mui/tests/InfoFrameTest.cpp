// The info frame on the headless binding: what it is built of, the message
// with its icon and link, hiding and showing, and that it leaves its parent
// when it goes.
#include "FollowedLinks.h"
#include "HeadlessForm.h"

#include "mui/MuFrame.h"
#include "mui/MuImage.h"
#include "mui/MuInfoFrame.h"
#include "mui/MuText.h"
#include "mui/Mui.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace mui::test {
namespace {

class InfoFrame : public HeadlessForm {
protected:
  void SetUp() override {
    HeadlessForm::SetUp();
    column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
    TextLeaf::create(column, "above", "Above");
  }
  MuImage* icon() { return static_cast<MuImage*>(dialog->find("column.info.split.icon")); }

  MuLayout* column = nullptr;
  FollowedLinks followed;
};

TEST_F(InfoFrame, StartsHiddenOnTheHelpColoursWithASuccessIcon) {
  MuInfoFrame info(column, "info", &followed, MuFrame::Bordered);
  MuFrame* frame = info.frame();
  EXPECT_FALSE(frame->isVisible());
  EXPECT_EQ(frame->frameType(), MuFrame::Bordered);
  EXPECT_STREQ(frame->effectiveStyle().backgroundColour.get(), "helpBg");
  EXPECT_EQ(frame->margin(), Size(10, 10)); // 20 units
  auto* row = static_cast<MuLayout*>(dialog->find("column.info.split"));
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->spacing(), Mui::toPixels(20));
  EXPECT_STREQ(icon()->imageName(), "infoframe_success");
  int mode = 0;
  int size = 0;
  ASSERT_TRUE(row->childLayout(icon(), &mode, &size));
  EXPECT_EQ(mode, MuLayout::Natural | MuLayout::AtStart);
  auto* textColumn = static_cast<MuLayout*>(dialog->find("column.info.split.textLayout"));
  ASSERT_TRUE(row->childLayout(textColumn, &mode, &size));
  EXPECT_EQ(mode, MuLayout::Weighted | MuLayout::AtStart);
  EXPECT_EQ(textColumn->spacing(), 0);
  EXPECT_EQ(dialog->find("column.info.split.textLayout.text"), info.text());
  EXPECT_EQ(info.link(), nullptr);
}

TEST_F(InfoFrame, AMessageShowsWithTheIconOfItsKindAndItsLink) {
  MuInfoFrame info(column, "info", &followed, MuFrame::Plain);
  info.setMessage(MuInfoFrame::Error, "Bad <name>", "Details");
  EXPECT_TRUE(info.frame()->isVisible());
  EXPECT_STREQ(info.text()->label(), "<div style=\"text-align:left;font-size:100%;"
                                     "font-weight:400;color:helpText;\">Bad &lt;name&gt;</div>");
  EXPECT_STREQ(icon()->imageName(), "infoframe_error");
  ASSERT_NE(info.link(), nullptr);
  EXPECT_EQ(dialog->find("column.info.split.textLayout.link"), info.link());
  EXPECT_THAT(info.link()->links(), testing::ElementsAre("app://infoframe//info"));
  EXPECT_TRUE(info.link()->perform("click", "0"));
  EXPECT_THAT(followed.urls, testing::ElementsAre("app://infoframe//info"));
  // Laid out below the text, after a gap of 6 units.
  dialog->layout();
  EXPECT_EQ(info.link()->getPosition().y,
            info.text()->getPosition().y + info.text()->getSize().height + Mui::toPixels(6));

  // The next message has no link: the old one goes.
  info.setMessage(MuInfoFrame::Warning, "Careful", nullptr);
  EXPECT_EQ(info.link(), nullptr);
  EXPECT_EQ(dialog->find("column.info.split.textLayout.link"), nullptr);
  EXPECT_EQ(static_cast<MuLayout*>(dialog->find("column.info.split.textLayout"))->childCount(), 1);
  EXPECT_STREQ(icon()->imageName(), "infoframe_warning");
}

TEST_F(InfoFrame, NoTextHidesTheFrameAndClearsTheText) {
  MuInfoFrame info(column, "info", nullptr, MuFrame::Plain);
  info.setMessage(MuInfoFrame::Success, "Done", nullptr);
  info.setMessage(MuInfoFrame::Success, nullptr, nullptr);
  EXPECT_FALSE(info.frame()->isVisible());
  EXPECT_EQ(info.text()->label(), nullptr);
  info.setShown(true);
  EXPECT_TRUE(info.frame()->isVisible());
  dialog->layout();
  const Point shownAt = info.frame()->getPosition();
  EXPECT_GT(shownAt.y, 0);
  info.setShown(false);
  EXPECT_FALSE(info.frame()->isVisible());
}

TEST_F(InfoFrame, EachKindHasItsIcon) {
  const struct {
    int kind;
    const char* image;
  } kinds[] = {{1, "infoframe_success"}, {2, "infoframe_warning"}, {3, "infoframe_error"},
               {4, "infoframe_locked"},  {5, "infoframe_default"}, {6, "infoframe_preference"},
               {0, "infoframe_notify"},  {7, "infoframe_notify"},  {-1, "infoframe_notify"}};
  for (const auto& k : kinds)
    EXPECT_STREQ(MuInfoFrame::imageOf(k.kind), k.image) << k.kind;
}

TEST_F(InfoFrame, LeavesItsParentWhenItGoes) {
  {
    MuInfoFrame info(column, "info", nullptr, MuFrame::Plain);
    EXPECT_EQ(column->childCount(), 2);
  }
  EXPECT_EQ(column->childCount(), 1);
  EXPECT_EQ(dialog->find("column.info"), nullptr);
}

} // namespace
} // namespace mui::test
