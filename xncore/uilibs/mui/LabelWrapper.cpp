#include "mui/LabelWrapper.h"

#include "mui/MeasurePass.h"
#include "mui/MuElement.h"
#include "mui/Mui.h"
#include "plat/Assertion.h"

#include <algorithm>
#include <cmath>

namespace mui {

namespace {

// Widths times weights may pass 32 bits on the way; the share does not.
int weightedShare(int spare, int weight, int weights) {
  return static_cast<int>(-(static_cast<long long>(spare) * weight / weights));
}

} // namespace

LabelWrapper::LabelWrapper(MuElement* element, MinSizeCallback* control)
    : element_(element), control_(control) {
  XN_ASSERT(element);
}

LabelWrapper* LabelWrapper::of(MuElement* element) {
  return element ? dynamic_cast<LabelWrapper*>(element->common()) : nullptr;
}

void LabelWrapper::setLabelLayoutOf(MuElement* element, int labelWidth, int controlWidth) {
  if (LabelWrapper* wrapper = of(element))
    wrapper->setLabelLayout(labelWidth, controlWidth);
}

int LabelWrapper::labelWidthOf(MuElement* element) {
  LabelWrapper* wrapper = of(element);
  return wrapper ? wrapper->labelWidth() : element->MuElement::labelWidth();
}

void LabelWrapper::alignCaptions(const std::vector<MuElement*>& elements) {
  int widest = 0;
  for (MuElement* element : elements)
    widest = std::max(widest, element->labelWidth());
  for (MuElement* element : elements)
    element->setLabelLayout(widest + Mui::metric(MetricLabelGap), -1);
}

bool LabelWrapper::hasCaption() const {
  const char* label = element_->label();
  return label && *label;
}

void LabelWrapper::setLabelLayout(int labelWidth, int controlWidth) {
  MeasurePass::invalidate();
  labelWidth_ = labelWidth;
  controlWidth_ = controlWidth;
  reposition();
}

int LabelWrapper::labelWidth() {
  return hasCaption() ? captionTextSize().width : 0;
}

int LabelWrapper::measureWidth() {
  int width = control_->minControlWidth();
  if (hasCaption()) {
    width += captionTextSize().width;
    if (labelWidth_ < 1)
      width += Mui::metric(MetricLabelGap);
  }
  return width;
}

int LabelWrapper::measureHeight(int width) {
  if (width < 1)
    return 0;
  const int control = control_->minControlHeight();
  return std::max(control, arrange({width, control}).caption.height());
}

LabelWrapper::Arrangement LabelWrapper::arrange(Size size) {
  Arrangement result;
  if (!hasCaption()) {
    result.control = Rect::at({0, 0}, size);
    return result;
  }
  const int gap = Mui::metric(MetricLabelGap);
  const Size text = captionTextSize();

  // The caption's column and the control's width: fixed ones first, then the
  // weighted ones share what is left.
  int labelWidth = labelWidth_;
  int controlWidth = controlWidth_;
  int fixed = 0;
  int weights = 0;
  if (labelWidth >= 0) {
    if (labelWidth == 0)
      labelWidth = text.width + gap;
    fixed = labelWidth;
  } else {
    weights = -labelWidth;
  }
  if (controlWidth >= 0) {
    if (controlWidth == 0)
      controlWidth = control_->minControlWidth();
    fixed += controlWidth;
  } else {
    weights -= controlWidth;
  }
  const int spare = size.width - fixed;
  if (labelWidth < 0)
    labelWidth = weightedShare(spare, labelWidth, weights);
  if (controlWidth < 0)
    controlWidth = weightedShare(spare, controlWidth, weights);
  // Too narrow with both natural: the control keeps its minimum, the caption wraps.
  if (fixed > size.width && labelWidth_ == 0 && controlWidth_ == 0)
    labelWidth = size.width - controlWidth;
  labelWidth = std::max(labelWidth, 0);

  const int captionWidth = std::max(labelWidth - gap, 0);
  const int captionHeight =
      captionWidth < text.width ? this->captionHeight(captionWidth) : text.height;
  const int controlHeight = std::min(control_->minControlHeight(), size.height);
  result.control =
      Rect::at({labelWidth, (size.height - controlHeight) / 2}, {controlWidth, controlHeight});

  // The caption is centred on the control's text, not on its window. A caption
  // of several lines beside the first line of a tall box would rise above
  // the wrapper: it stays inside, at the top if it must be cut.
  int captionTop = (size.height - captionHeight) / 2;
  int centre = 0;
  if (controlTextCentre(result.control, &centre) && centre >= result.control.tl.y &&
      centre < result.control.br.y)
    captionTop = static_cast<int>(std::floor(centre - captionHeight * 0.5 + 0.5));
  captionTop = std::max(std::min(captionTop, size.height - captionHeight), 0);
  result.caption = Rect::at({0, captionTop}, {captionWidth, captionHeight});
  return result;
}

void LabelWrapper::reposition() {
  place(arrange(wrapperSize()));
}

bool LabelWrapper::controlTextCentre(const Rect&, int*) {
  return false;
}

} // namespace mui
