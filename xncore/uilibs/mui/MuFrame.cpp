#include "mui/MuFrame.h"

#include "mui/MeasurePass.h"
#include "mui/Mui.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

namespace mui {

MuFrameFactory muFrameFactory = nullptr;

namespace {

// A titled frame's measure leaves room for the title, and its layout puts the
// child a little higher than that room: the rest is slack at the bottom.
constexpr int titleMeasureUnits = 28;
constexpr int titleLayoutUnits = 24;
constexpr int borderUnits = 4;

const char* typeWord(int type) {
  switch (type) {
  case MuFrame::Plain:
    return "Plain";
  case MuFrame::Titled:
    return "Titled";
  case MuFrame::Header:
    return "Header";
  case MuFrame::Footer:
    return "Footer";
  case MuFrame::Bordered:
    return "Bordered";
  default:
    return "Unknown";
  }
}

} // namespace

MuFrame::MuFrame(MuContainer* parent, const char* name, const char* title, int type)
    : MuContainerSingle(parent, name, title), frameType_(type),
      margin_(Mui::metric(MetricFrameMargin), Mui::metric(MetricFrameMargin)) {}

MuFrame* MuFrame::create(MuContainer* parent, const char* name, const char* title, int type) {
  XN_ASSERT(muFrameFactory);
  MuFrame* frame = muFrameFactory(parent, name, title, type);
  parent->add(frame);
  return frame;
}

void MuFrame::setMargin(Size margin) {
  MeasurePass::invalidate();
  margin_ = margin;
}

plat::String MuFrame::shownTitle() const {
  if (!label())
    return plat::String();
  plat::DString shown("");
  for (const char* p = label(); *p; ++p)
    shown.append(*p == '&' ? "&&" : p, *p == '&' ? 2 : 1);
  return shown.takeString();
}

int MuFrame::minHeight(int width) {
  int extra = 2 * margin_.height;
  int inner = width - 2 * margin_.width;
  if (frameType_ == Titled)
    extra += Mui::toPixels(titleMeasureUnits);
  if (frameType_ == Bordered) {
    extra += Mui::toPixels(borderUnits);
    inner -= Mui::toPixels(borderUnits);
  }
  MuElement* content = child();
  return content ? content->minHeight(inner) + extra : extra;
}

int MuFrame::minWidth(int height) {
  int extra = 2 * margin_.width;
  int inner = height - 2 * margin_.height;
  if (frameType_ == Titled)
    inner -= Mui::toPixels(titleMeasureUnits);
  if (frameType_ == Bordered) {
    extra += Mui::toPixels(borderUnits);
    inner -= Mui::toPixels(borderUnits);
  }
  MuElement* content = child();
  return content ? content->minWidth(inner) + extra : extra;
}

void MuFrame::layout() {
  MuElement* content = child();
  if (!content)
    return;
  const Size size = getSize();
  const int top = margin_.height + (frameType_ == Titled ? Mui::toPixels(titleLayoutUnits) : 0);
  content->setPosition({margin_.width, top});
  content->setSize({size.width - 2 * margin_.width, size.height - margin_.height - top});
}

void MuFrame::relayout() {
  MuContainerSingle::relayout();
  invalidate(Rect::at({0, 0}, getSize()));
}

const char* MuFrame::typeName() {
  return "frame";
}

plat::String MuFrame::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element Frame\ntype %s\nmargin %d,%d\n", typeWord(frameType_),
                    static_cast<int>(margin_.width), static_cast<int>(margin_.height));
  return text.takeString();
}

} // namespace mui
