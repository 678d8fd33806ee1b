// The display scale by which named images are chosen: the toolkit's parameter
// "ppmm" times a build-wide factor, which is 1 in this program. 4 means single
// density (96 dots per inch), 8 double.
#pragma once

#include "rfb/Rect.h"

namespace xnutil {

/// Read at each call, by name, so that a change of "ppmm" counts at once; 4
/// in a program without that parameter.
int displayScale();

/// The size at which an image drawn for single density shows at `scale`.
rfb::Size singleDensitySize(rfb::Size image, int scale);
/// The size at which an image drawn for double density shows at `scale`.
rfb::Size doubleDensitySize(rfb::Size image, int scale);

} // namespace xnutil
