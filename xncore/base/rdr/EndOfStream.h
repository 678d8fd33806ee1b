// rdr::EndOfStream: no more data will come from a stream. Header-only, so that
// plat::File, which sits below the streams, can raise it at the end of a file
// and the streams can pass it on unchanged.
#pragma once

#include "plat/Exception.h"

namespace rdr {

class EndOfStream : public plat::Exception {
public:
  explicit EndOfStream(const char* text = "End of stream") noexcept : Exception(text) {
    setType("EndOfStream");
  }
};

} // namespace rdr
