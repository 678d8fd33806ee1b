// mui::LabelWrapperHeadless: the peer of a control with a caption on the
// headless binding. It measures the caption with the headless text model ('&'
// marks the caption's mnemonic and takes no room) and keeps where the caption
// and the control were placed, so that tests can read how a form aligns.
#pragma once

#include "mui/LabelWrapper.h"
#include "mui/headless/MuCommonHeadless.h"

namespace mui {

class LabelWrapperHeadless : public MuCommonHeadless, public LabelWrapper {
public:
  LabelWrapperHeadless(MuElement* element, MinSizeCallback* control, Traits traits);

  int minWidth(int height) override;
  int minHeight(int width) override;
  /// Places caption and control again at the new size.
  void setSize(Size size) override;

  /// Where caption and control stand, in the wrapper's coordinates.
  const Arrangement& placed() const noexcept { return placed_; }

protected:
  Size captionTextSize() override;
  int captionHeight(int width) override;
  Size wrapperSize() override { return getSize(); }
  void place(const Arrangement& arrangement) override;

private:
  Arrangement placed_;
};

} // namespace mui
