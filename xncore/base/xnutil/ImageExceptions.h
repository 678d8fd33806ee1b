// The failures of decoding images and of finding named images. Each takes a
// printf format, like plat::Exception, and carries its own type word.
#pragma once

#include "plat/Compiler.h"
#include "plat/Exception.h"

namespace xnutil {

/// libpng refused the data, the data ended early, or the image's colour type
/// is one the decoder does not deliver.
class PngException : public plat::Exception {
public:
  explicit PngException(const char* format, ...) noexcept XN_PRINTF_FORMAT(2, 3);
};

/// No built-in image of the name at any density.
class NamedImageNotFound : public plat::Exception {
public:
  explicit NamedImageNotFound(const char* format, ...) noexcept XN_PRINTF_FORMAT(2, 3);
};

/// The built-in images of one name disagree about its size.
class NamedImageBadSize : public plat::Exception {
public:
  explicit NamedImageBadSize(const char* format, ...) noexcept XN_PRINTF_FORMAT(2, 3);
};

} // namespace xnutil
