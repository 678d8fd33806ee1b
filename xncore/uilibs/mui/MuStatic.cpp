#include "mui/MuStatic.h"

#include "mui/MeasurePass.h"
#include "mui/MuContainer.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <iterator>

namespace mui {

MuStaticFactory muStaticFactory = nullptr;

namespace {

constexpr const char* typeWords[] = {"Text",    "LeftText", "CenteredText", "RightText",
                                     "Heading", "Detail",   "Selectable"};
constexpr int headingSize = 140;
constexpr int boldWeight = 700;

} // namespace

MuStatic::MuStatic(MuContainer* parent, const char* name, const char* text, int type)
    : MuElement(parent, name, text), staticType_(type) {
  if (type == Heading) {
    ownStyle().fontWeight = boldWeight;
    ownStyle().fontSize = headingSize;
  }
}

MuStatic* MuStatic::create(MuContainer* parent, const char* name, const char* text, int type) {
  XN_ASSERT(muStaticFactory);
  MuStatic* element = muStaticFactory(parent, name, text, type);
  parent->add(element);
  return element;
}

void MuStatic::setText(const char* text, bool bold, bool singleLine) {
  MeasurePass::invalidate();
  setLabelText(text);
  singleLine_ = singleLine;
  textChanged();
  if (bold && staticType_ != Heading && ownStyle().fontWeight != boldWeight) {
    ownStyle().fontWeight = boldWeight;
    styleChanged();
  }
}

int MuStatic::alignment() const noexcept {
  if (staticType_ == CenteredText)
    return 0;
  return staticType_ == RightText ? 1 : -1;
}

const char* MuStatic::typeName() {
  return "static";
}

plat::String MuStatic::describe() {
  plat::DString text(describeCommon().get());
  const bool known = staticType_ >= 0 && staticType_ < static_cast<int>(std::size(typeWords));
  text.appendFormat("element Static\ntype %s\nbold %d\n",
                    known ? typeWords[staticType_] : "Unknown", effectiveStyle().isBold() ? 1 : 0);
  return text.takeString();
}

} // namespace mui
