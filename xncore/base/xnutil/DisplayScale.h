// The display scale by which named images are chosen: the toolkit's parameter
// "ppmm" times the device's scale, by which a display that scales the
// layout's pixels (a device pixel ratio of 2 on a 192 dots-per-inch screen)
// shows finer images. 4 means single density (96 dots per inch), 8 double.
#pragma once

#include "rfb/Rect.h"

namespace xnutil {

/// Read at each call, by name, so that a change of "ppmm" counts at once; 4
/// in a program without that parameter.
int displayScale();

/// The device's scale in percent of the layout's pixels, 100 unless a
/// binding's display scales them; at most 400.
void setDeviceScalePercent(int percent) noexcept;
int deviceScalePercent() noexcept;

/// The size at which an image drawn for single density shows at `scale`.
rfb::Size singleDensitySize(rfb::Size image, int scale);
/// The size at which an image drawn for double density shows at `scale`.
rfb::Size doubleDensitySize(rfb::Size image, int scale);

} // namespace xnutil
