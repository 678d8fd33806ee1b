// The parameter "MaxOutBufferSize": how much a buffered output stream may hold
// for a slow peer before writing blocks. A stream made without a maximum of
// its own takes this value.
#pragma once

#include "plat/IntParameter.h"

namespace rdr {

/// In bytes, 16384 to 2147483647; read when a stream is made.
extern plat::IntParameter maxOutBufferSizeParameter;

} // namespace rdr
