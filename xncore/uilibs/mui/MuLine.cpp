#include "mui/MuLine.h"

#include "mui/MeasurePass.h"
#include "mui/MuContainer.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

namespace mui {

MuLineFactory muLineFactory = nullptr;

MuLine::MuLine(MuContainer* parent, const char* name, bool horizontal, int type, int thickness)
    : MuElement(parent, name), lineType_(type), horizontal_(horizontal),
      thickness_(type == Etched ? etchedThickness : thickness) {}

MuLine* MuLine::create(MuContainer* parent, const char* name, bool horizontal, int type,
                       int thickness) {
  XN_ASSERT(muLineFactory);
  MuLine* line = muLineFactory(parent, name, horizontal, type, thickness);
  parent->add(line);
  return line;
}

void MuLine::setThickness(int thickness) {
  MeasurePass::invalidate();
  thickness_ = lineType_ == Etched ? etchedThickness : thickness;
  styleChanged();
}

int MuLine::minWidth(int height) {
  return horizontal_ ? MuElement::minWidth(height) : thickness_;
}

int MuLine::minHeight(int width) {
  return horizontal_ ? thickness_ : MuElement::minHeight(width);
}

const char* MuLine::typeName() {
  return "line";
}

plat::String MuLine::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element Line\ntype %s type %s\n", horizontal_ ? "horizontal" : "vertical",
                    lineType_ == Etched ? "etched" : "color");
  return text.takeString();
}

} // namespace mui
