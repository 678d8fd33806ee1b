#include "mui/MuButton.h"

#include "mui/MeasurePass.h"
#include "mui/MuContainer.h"
#include "mui/Mui.h"
#include "mui/Perform.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>
#include <cstring>

namespace mui {

MuButtonFactory muButtonFactory = nullptr;

namespace {

// Room, in units, that parts of a button take beside its text.
constexpr int shieldUnits = 80;
constexpr int dropDownUnits = 40;
constexpr int imageGapUnits = 8;
constexpr int paddingUnits = 24;
constexpr int imagePaddingWithLabelUnits = 16;
constexpr int imagePaddingUnits = 12;

bool hasArea(Size size) {
  return size.width > 0 && size.height > 0;
}

const char* typeWord(int type) {
  switch (type) {
  case MuButton::Custom:
    return "Custom";
  case MuButton::Hyperlink:
    return "Hyperlink";
  default:
    return "Normal";
  }
}

} // namespace

MuButton::MuButton(MuContainer* parent, const char* name, const char* label, int type, int options,
                   int textAlign)
    : MuElement(parent, name, label), buttonType_(type), options_(options), textAlign_(textAlign) {}

MuButton* MuButton::create(MuContainer* parent, const char* name, const char* label, int type,
                           int options, int textAlign) {
  XN_ASSERT(muButtonFactory);
  MuButton* button = muButtonFactory(parent, name, label, type, options, textAlign);
  parent->add(button);
  return button;
}

void MuButton::setLabel(const char* label) {
  setLabelText(label);
  MeasurePass::invalidate();
}

void MuButton::setImage(const char* name, const Size*, int state) {
  if (state == ImageNormal)
    imageName_ = plat::String(name);
  MeasurePass::invalidate();
}

void MuButton::setTextMargins(const Point* topLeft, const Point* bottomRight) {
  textMargins_[0] = topLeft ? topLeft->x : 0;
  textMargins_[1] = topLeft ? topLeft->y : 0;
  textMargins_[2] = bottomRight ? bottomRight->x : 0;
  textMargins_[3] = bottomRight ? bottomRight->y : 0;
  MeasurePass::invalidate();
  invalidate(Rect::at({0, 0}, getSize()));
}

void MuButton::setShield(bool) {}

int MuButton::minWidth(int height) {
  if (buttonType_ == Custom)
    return customMinWidth(height);
  int w = hasLabel() ? MuElement::minWidth(height) : 0;
  if (showsShield())
    w += Mui::toPixels(shieldUnits);
  if (options_ & DropDown)
    w += dropDownWidth();
  if (const Size image = imageSize(); hasArea(image)) {
    w += image.width;
    if (hasLabel() || !isFlat())
      w += imageGap();
  }
  if (buttonType_ != Normal || isFlat() || !hasLabel())
    return w;
  return std::max(w + labelPadding(), Mui::metric(MetricButtonWidth));
}

int MuButton::imageGap() {
  return Mui::toPixels(imageGapUnits);
}

int MuButton::dropDownWidth() {
  return Mui::toPixels(dropDownUnits);
}

int MuButton::labelPadding() {
  return std::max(Mui::toPixels(paddingUnits), nativeFramePadding().width);
}

int MuButton::minHeight(int width) {
  if (buttonType_ == Custom)
    return customMinHeight(width);
  const bool framed = buttonType_ == Normal && !isFlat();
  const Size padding = framed ? nativeFramePadding() : Size();
  const int h = MuElement::minHeight(width - padding.width);
  const bool plain = !framed || !hasLabel();
  const Size image = imageSize();
  const int framePadding = padding.height;
  if (!hasArea(image))
    return plain ? h : std::max(h + framePadding, Mui::metric(MetricControlHeight));
  int r = std::max(h, image.height);
  if (framed)
    r += std::max(Mui::toPixels(hasLabel() ? imagePaddingWithLabelUnits : imagePaddingUnits),
                  framePadding);
  if (isFlat() || !hasLabel())
    return r;
  return std::max(r, Mui::metric(MetricControlHeight));
}

// The image is the button: the label must fit inside the margins, and the
// button is never smaller than its image.
int MuButton::customMinWidth(int height) {
  const int text = hasLabel() ? MuElement::minWidth(height) : 0;
  return std::max(text + textMargins_[0] + textMargins_[2], imageSize().width);
}

int MuButton::customMinHeight(int width) {
  const int inner = width - textMargins_[0] - textMargins_[2];
  const int text = hasLabel() ? MuElement::minHeight(inner) : 0;
  return std::max(text + textMargins_[1] + textMargins_[3], imageSize().height);
}

const char* MuButton::typeName() {
  return "button";
}

plat::String MuButton::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element Button\ntype %s\n", typeWord(buttonType_));
  if (!imageName_.isNull())
    text.appendFormat("image %s\n", imageName_.get());
  return text.takeString();
}

bool MuButton::perform(const char* action, const char*) {
  if (std::strcmp(action, "click") != 0 || !canPerform(this, false))
    return false;
  notify(this, EventClicked);
  return true;
}

} // namespace mui
