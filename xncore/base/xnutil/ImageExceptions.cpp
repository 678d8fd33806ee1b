#include "xnutil/ImageExceptions.h"

#include <cstdarg>

namespace xnutil {

#define XN_IMAGE_EXCEPTION(Class)                                                                  \
  Class::Class(const char* format, ...) noexcept {                                                 \
    va_list args;                                                                                  \
    va_start(args, format);                                                                        \
    appendMessageFormatV(format, args);                                                            \
    va_end(args);                                                                                  \
    setType(#Class);                                                                               \
  }

XN_IMAGE_EXCEPTION(PngException)
XN_IMAGE_EXCEPTION(NamedImageNotFound)
XN_IMAGE_EXCEPTION(NamedImageBadSize)

#undef XN_IMAGE_EXCEPTION

} // namespace xnutil
