// How static content looks on Qt at single and double density: one form with
// every kind of static, every kind of frame, captions beside controls, lines,
// named images, a marked-up text with links and an info frame, grabbed
// offscreen. The grab must not be blank, every widget must stand at
// the rectangle the layout gave its element, every text must have ink, and
// nothing may overflow. With XN_SCREENSHOT_DIR set, the grabs are saved there
// as static-content-<ppmm>.png, for a person to look at.
//
// Named images asked for at their own size are cached at the size of the
// first density that asked, so each density wants a process of its own, as
// CTest gives every case.
#include "QtForm.h"

#include "mui/MuEdit.h"
#include "mui/MuFrame.h"
#include "mui/MuImage.h"
#include "mui/MuInfoFrame.h"
#include "mui/MuLine.h"
#include "mui/MuStatic.h"
#include "mui/MuText.h"
#include "mui/Mui.h"
#include "mui/qt/LabelWrapperQt.h"

#include <QDir>
#include <QImage>
#include <QSet>
#include <cstdlib>
#include <string>
#include <vector>

namespace mui::test {
namespace {

struct Overflows : OverflowReporter {
  std::vector<std::string> found;
  void report(MuElement* element, const char* message) override {
    found.push_back(std::string(element->fullName().orEmpty()) + ": " + message);
  }
};

class StaticContentLook : public QtForm, public testing::WithParamInterface<int> {
protected:
  void SetUp() override {
    ppmmParameter.setInt(GetParam(), 10);
    QtForm::SetUp();
    const Size size{Mui::textToPixels(880), 1};
    form.reset(
        MuDialog::create("look", "Static content", &size, MuDialog::FitHeight, nullptr, nullptr));
  }
  void TearDown() override {
    info.reset();
    form.reset();
    QtForm::TearDown();
  }

  // The texts are the kind a form shows; they are not the program's own.
  void build() {
    MuLayout* column = MuLayout::create(form.get(), "column", MuLayout::Vertical);
    MuStatic::create(column, "heading", "Static content", MuStatic::Heading);
    MuLayout* row = MuLayout::create(column, "aligned", MuLayout::Horizontal);
    row->setDefaultMode(MuLayout::Weighted);
    MuStatic::create(row, "left", "Left & aligned", MuStatic::Text);
    MuStatic::create(row, "centre", "Centred text", MuStatic::CenteredText);
    MuStatic::create(row, "right", "Right-aligned", MuStatic::RightText);
    MuStatic::create(column, "detail",
                     "A detail that wraps over more than one line when the form is narrow, as "
                     "the explanations under a heading do.",
                     MuStatic::Detail);
    MuStatic::create(column, "selectable", "Selectable: S-1-5-32-544 (copy me)",
                     MuStatic::Selectable);
    MuStatic* single = MuStatic::create(column, "single", "", MuStatic::Text);
    single->setText("A single line that is far too long to be shown whole in this form, so it "
                    "ends in an ellipsis after the last word that fits",
                    true, true);

    // A frame's measure leaves its title out: the content is the wider here.
    MuLayout* frames = MuLayout::create(column, "frames", MuLayout::Horizontal);
    const struct {
      const char* name;
      const char* title;
      int type;
      const char* content;
    } kinds[] = {{"titled", "Group & title", MuFrame::Titled, "Titled frame"},
                 {"bordered", nullptr, MuFrame::Bordered, "Bordered"},
                 {"header", nullptr, MuFrame::Header, "Header"},
                 {"footer", nullptr, MuFrame::Footer, "Footer"},
                 {"plain", nullptr, MuFrame::Plain, "Plain"}};
    for (const auto& kind : kinds) {
      MuFrame* frame = MuFrame::create(frames, kind.name, kind.title, kind.type);
      MuStatic::create(frame, "text", kind.content, MuStatic::Text);
    }
    MuElement* plain = form->find("column.frames.plain");
    plain->setBackgroundColour("helpBg");
    plain->setTextColour("helpText");

    MuFrame* captions = MuFrame::create(column, "captions", "Captions", MuFrame::Titled);
    MuLayout* fields = MuLayout::create(captions, "fields", MuLayout::Vertical);
    MuEdit* captioned[] = {
        MuEdit::create(fields, "type", "&Type:"),
        MuEdit::create(fields, "name", "Display &name:"),
        MuEdit::create(fields, "notes",
                       "N&otes, which take more than one line:", MuEdit::Multiline),
    };
    captioned[2]->setText("A box of many lines\nhas its caption by its first line.");
    int captionColumn = 0;
    for (MuEdit* edit : captioned)
      captionColumn = std::max(captionColumn, edit->labelWidth());
    for (MuEdit* edit : captioned)
      edit->setLabelLayout(captionColumn / 2 + Mui::metric(MetricLabelGap), -1);
    fields->setChildLayout(captioned[2], MuLayout::Fixed, captioned[2]->heightForRows(3));

    MuLine::create(column, "etched", true, MuLine::Etched, 1);
    MuLayout* pictures = MuLayout::create(column, "pictures", MuLayout::Horizontal);
    pictures->setDefaultMode(MuLayout::Centred);
    for (const char* image : {"user", "group", "accept", "deny", "infoframe_warning"})
      MuImage::create(pictures, image, image, nullptr);
    MuLine::create(pictures, "upright", false, MuLine::Etched, 1);
    const Size big = Mui::toPixels(Size(48, 48));
    MuImage::create(pictures, "big", "statusinfo", &big);
    MuLine* rule = MuLine::create(pictures, "rule", false, MuLine::Color, Mui::toPixels(4));
    rule->setTextColour("statusGreen");
    MuText::create(pictures, "marked",
                   "<div style=\"text-align:center\"><b>Marked-up</b> text with <i>styles</i> "
                   "and <a href=\"https://example.org/\">a link</a>.</div>"
                   "<div style=\"text-align:right\"><span style=\"color:statusRed\">Red</span>, "
                   "right-aligned.</div>",
                   nullptr, false);
    pictures->setChildLayout(form->find("column.pictures.marked"), MuLayout::Weighted, 1);

    info = std::make_unique<MuInfoFrame>(column, "info", nullptr, MuFrame::Plain);
    info->setMessage(MuInfoFrame::Error,
                     "The name isn't known to this computer. Check its spelling, or pick it "
                     "from the list.",
                     "More about names");
    form->relayout();
  }

  /// The element's rectangle in the dialog's client coordinates.
  static QRect placeOf(MuElement* element) {
    QPoint at;
    for (MuElement* e = element; e->parent(); e = e->parent())
      at += QPoint(e->getPosition().x, e->getPosition().y);
    return QRect(at, QSize(element->getSize().width, element->getSize().height));
  }

  QImage grab() {
    form->setVisible(true);
    QWidget* window = static_cast<MuDialogQt*>(form.get())->window();
    const QImage image = window->grab().toImage();
    if (const char* dir = std::getenv("XN_SCREENSHOT_DIR"))
      image.save(QDir(dir).filePath(QStringLiteral("static-content-%1.png").arg(GetParam())));
    return image;
  }

  static int inkIn(const QImage& image, const QRect& rect, QRgb background) {
    int ink = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y)
      for (int x = rect.left(); x <= rect.right(); ++x)
        ink += image.pixel(x, y) != background;
    return ink;
  }

  // Leaves with a widget: spacers have none.
  void eachLeaf(MuElement* element, const std::function<void(MuElement*)>& visit) {
    auto* container = dynamic_cast<MuContainer*>(element);
    if (!container) {
      if (MuCommonQt::of(element))
        visit(element);
      return;
    }
    for (int i = 0; i < container->childCount(); ++i)
      eachLeaf(container->getChild(i), visit);
  }

  std::unique_ptr<MuDialog> form;
  std::unique_ptr<MuInfoFrame> info;
};

TEST_P(StaticContentLook, EveryElementShowsAtItsPlaceWithNothingCutOff) {
  build();
  const QImage image = grab();
  ASSERT_FALSE(image.isNull());
  QSet<QRgb> colours;
  for (int y = 0; y < image.height(); y += 2)
    for (int x = 0; x < image.width(); x += 2)
      colours.insert(image.pixel(x, y));
  EXPECT_GT(colours.size(), 8) << "a blank grab";

  QWidget* window = static_cast<MuDialogQt*>(form.get())->window();
  int leaves = 0;
  eachLeaf(form.get(), [&](MuElement* leaf) {
    ++leaves;
    QWidget* widget = MuCommonQt::of(leaf)->widget();
    const QRect place = placeOf(leaf);
    EXPECT_EQ(QRect(widget->mapTo(window, QPoint()), widget->size()), place)
        << leaf->fullName().get();
    EXPECT_TRUE(image.rect().contains(place)) << leaf->fullName().get();
    const QRgb background = image.pixel(place.topLeft() + QPoint(place.width() - 1, 0));
    // A caption stands wholly inside its control's wrapper.
    if (auto* wrapper = dynamic_cast<LabelWrapperQt*>(MuCommonQt::of(leaf))) {
      EXPECT_TRUE(widget->rect().contains(wrapper->caption()->geometry()))
          << leaf->fullName().get();
    }
    if (dynamic_cast<MuStatic*>(leaf) || dynamic_cast<MuText*>(leaf) ||
        dynamic_cast<MuImage*>(leaf)) {
      EXPECT_GT(inkIn(image, place, background), 10) << leaf->fullName().get();
    }
  });
  EXPECT_EQ(leaves, 15 + 1 + 9 + 3);

  Overflows overflows;
  form->checkOverflow(overflows);
  EXPECT_TRUE(overflows.found.empty()) << overflows.found.front();
}

INSTANTIATE_TEST_SUITE_P(Densities, StaticContentLook, testing::Values(4, 8),
                         [](const testing::TestParamInfo<int>& density) {
                           return "ppmm" + std::to_string(density.param);
                         });

} // namespace
} // namespace mui::test
