// The geometry types of the toolkit. All element operations take device
// pixels; units (eighths of a millimetre) are turned into pixels by Mui.
#pragma once

#include "rfb/Rect.h"

namespace mui {

using rfb::Point;
using rfb::Rect;
using rfb::Size;

} // namespace mui
