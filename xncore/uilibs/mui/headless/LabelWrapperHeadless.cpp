#include "mui/headless/LabelWrapperHeadless.h"

#include "mui/MuElement.h"
#include "mui/headless/TextModelHeadless.h"

namespace mui {

namespace {

TextModelHeadless captionModel(MuElement* element) {
  return TextModelHeadless(element->effectiveStyle(), true);
}

} // namespace

LabelWrapperHeadless::LabelWrapperHeadless(MuElement* element, MinSizeCallback* control,
                                           Traits traits)
    : MuCommonHeadless(element, traits), LabelWrapper(element, control) {}

int LabelWrapperHeadless::minWidth(int) {
  return measureWidth();
}

int LabelWrapperHeadless::minHeight(int width) {
  return measureHeight(width);
}

void LabelWrapperHeadless::setSize(Size size) {
  MuCommonHeadless::setSize(size);
  reposition();
}

Size LabelWrapperHeadless::captionTextSize() {
  const TextModelHeadless model = captionModel(wrappedElement());
  const char* caption = wrappedElement()->label();
  return {model.width(caption), model.height(caption, 1, true)};
}

int LabelWrapperHeadless::captionHeight(int width) {
  return captionModel(wrappedElement()).height(wrappedElement()->label(), width, false);
}

void LabelWrapperHeadless::place(const Arrangement& arrangement) {
  placed_ = arrangement;
}

} // namespace mui
