#include "rdr/OutStreamParameters.h"

#include <climits>

namespace rdr {

// Will move beside the buffered output stream.
plat::IntParameter maxOutBufferSizeParameter(
    "MaxOutBufferSize",
    "The maximum number of bytes to buffer internally when writing to slow connections.  Larger "
    "values improve concurrency, smaller values reduce memory usage.  Changes to this setting "
    "affect new connections only.",
    134217728, true, nullptr, 16384, INT_MAX);

} // namespace rdr
