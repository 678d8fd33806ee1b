// mui::MuiHeadless: the root of the headless binding, for tests and for
// running the toolkit's logic without a display. Its desktop is a fixed
// rectangle that tests may change.
#pragma once

#include "mui/Mui.h"

namespace mui {

class MuiHeadless : public Mui {
public:
  MuiHeadless() = default;

  Size desktopSize() const noexcept { return desktop_; }
  void setDesktopSize(Size size) noexcept { desktop_ = size; }

  static MuiHeadless& instance();

private:
  Size desktop_{1920, 1080};
};

/// Makes the headless root the toolkit's root and installs every factory hook
/// of the headless binding.
void installHeadlessBinding(MuiHeadless& root);

} // namespace mui
