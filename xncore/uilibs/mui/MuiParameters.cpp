#include "mui/MuiParameters.h"

#include "mui/DisplayDensity.h"

namespace mui {

// "ppmm" and "TextSizeFactor" will move beside toPixels and textToPixels of the
// element model, "_DebugLayout" beside the layout engine.
plat::IntParameter ppmmParameter("ppmm", "Physical display units per mm.",
                                 ppmmForDpi(primaryDisplayDpi()), true, nullptr, 1, 32);
plat::IntParameter textSizeFactorParameter("TextSizeFactor",
                                           "Factor for text size on this system, normal being 100",
                                           100, true, nullptr, 1, 1000);
plat::BoolParameter debugLayoutParameter("_DebugLayout", "", false, true);

} // namespace mui
