// The density of the display, from which the default of the parameter "ppmm"
// is computed once, before the parameter is constructed.
#pragma once

namespace mui {

/// The primary display's logical resolution in dots per inch. This build has
/// no display to ask and answers the standard 96; a native binding supplies
/// its own definition in place of DisplayDensity.cpp.
int primaryDisplayDpi();

/// Pixels per millimetre as the toolkit counts them: (dpi + 12) / 24, so 96
/// dots per inch give 4. The divisor is 24, not 25.4, on purpose.
constexpr int ppmmForDpi(int dpi) {
  return (dpi + 12) / 24;
}

} // namespace mui
