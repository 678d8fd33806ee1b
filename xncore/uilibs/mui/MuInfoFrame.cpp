#include "mui/MuInfoFrame.h"

#include "mui/MuFrame.h"
#include "mui/MuImage.h"
#include "mui/MuLayout.h"
#include "mui/MuSpacer.h"
#include "mui/MuText.h"
#include "mui/Mui.h"
#include "plat/DString.h"
#include "plat/MarkupBuilders.h"

namespace mui {

namespace {

constexpr int marginUnits = 20;
constexpr int iconGapUnits = 20;
constexpr int linkGapUnits = 6;

} // namespace

MuInfoFrame::MuInfoFrame(MuContainer* parent, const char* name,
                         plat::Markup::LinkCallback* linkCallback, int frameType)
    : linkCallback_(linkCallback), parent_(parent) {
  frame_ = MuFrame::create(parent, name, nullptr, frameType);
  frame_->setBackgroundColour("helpBg");
  frame_->setMargin(Mui::toPixels(Size(marginUnits, marginUnits)));
  row_ = MuLayout::create(frame_, "split", MuLayout::Horizontal);
  row_->setSpacing(Mui::toPixels(iconGapUnits));
  icon_ = MuImage::create(row_, "icon", imageOf(Success), nullptr);
  row_->setChildLayout(icon_, MuLayout::Natural | MuLayout::AtStart, 1);
  textColumn_ = MuLayout::create(row_, "textLayout", MuLayout::Vertical);
  textColumn_->setSpacing(0);
  row_->setChildLayout(textColumn_, MuLayout::Weighted | MuLayout::AtStart, 1);
  text_ = MuText::create(textColumn_, "text", nullptr, nullptr, false);
  frame_->setVisible(false);
}

MuInfoFrame::~MuInfoFrame() {
  parent_->removeChild(frame_);
}

const char* MuInfoFrame::imageOf(int kind) {
  switch (kind) {
  case Success:
    return "infoframe_success";
  case Warning:
    return "infoframe_warning";
  case Error:
    return "infoframe_error";
  case Locked:
    return "infoframe_locked";
  case Default:
    return "infoframe_default";
  case Preference:
    return "infoframe_preference";
  default:
    return "infoframe_notify";
  }
}

void MuInfoFrame::setMessage(int kind, const char* text, const char* linkText) {
  if (text) {
    plat::Markup::Style style;
    style.colour_ = plat::String("helpText");
    plat::DString block("");
    plat::markupDiv(block, plat::Markup::alignLeft, &style);
    plat::markupAppend(block, text);
    block.append("</div>");
    text_->setText(block.data());
  } else {
    text_->setText(nullptr);
  }
  icon_->setImage(imageOf(kind), nullptr);
  if (link_) {
    textColumn_->removeChild(linkGap_);
    textColumn_->removeChild(link_);
    linkGap_ = nullptr;
    link_ = nullptr;
  }
  if (linkText) {
    linkGap_ = MuSpacer::create(textColumn_, 0, 0);
    textColumn_->setChildLayout(linkGap_, MuLayout::Fixed, Mui::toPixels(linkGapUnits));
    const plat::String target =
        plat::strFormat("app://infoframe//%s", frame_->name() ? frame_->name() : "");
    plat::DString markup("");
    plat::markupLink(markup, linkText, target.get(), static_cast<const char*>(nullptr));
    link_ = MuText::create(textColumn_, "link", markup.data(), linkCallback_, false);
  }
  frame_->setVisible(text != nullptr);
  row_->relayout();
  parent_->relayout();
}

void MuInfoFrame::setShown(bool shown) {
  if (frame_->isVisible() == shown)
    return;
  frame_->setVisible(shown);
  parent_->relayout();
}

} // namespace mui
