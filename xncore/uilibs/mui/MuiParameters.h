// The toolkit's parameters. "ppmm" and "TextSizeFactor" scale units to
// pixels in the element model's conversions; "_DebugLayout" makes the layout
// engine show its work.
#pragma once

#include "plat/BoolParameter.h"
#include "plat/IntParameter.h"

namespace mui {

/// "ppmm": physical display units per millimetre, 1 to 32.
extern plat::IntParameter ppmmParameter;
/// "TextSizeFactor": percentage by which text-bound sizes grow, 1 to 1000.
extern plat::IntParameter textSizeFactorParameter;
/// "_DebugLayout": internal switch of the layout engine.
extern plat::BoolParameter debugLayoutParameter;

} // namespace mui
