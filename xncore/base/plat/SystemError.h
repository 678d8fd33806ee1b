// The operating system's and the C library's texts for error codes. The
// platform directory supplies them.
#pragma once

#include <cstddef>

namespace plat {

/// The system's message for `code` into `buffer`, always terminated.
void systemErrorText(int code, char* buffer, std::size_t size) noexcept;

/// The C library's message for errno value `code` into `buffer`, always terminated.
void libraryErrorText(int code, char* buffer, std::size_t size) noexcept;

} // namespace plat
