// The resources built into the program: named blocks of bytes, such as the
// PNG files of the named images, found by a name compared without regard to
// case. The build compiles the program's images in and enters them at start-up;
// tests enter resources of their own. Bytes are never copied.
#pragma once

#include <cstddef>
#include <cstdint>

namespace xnutil {

struct BuiltinResource {
  const std::uint8_t* data = nullptr;
  std::size_t length = 0;
};

/// The resource of `name`; null data when there is none.
BuiltinResource findBuiltinResource(const char* name);
/// Enters `length` bytes at `data`, which must stay valid, under `name`,
/// replacing a resource of the same name.
void addBuiltinResource(const char* name, const void* data, std::size_t length);
/// Takes a resource out; for tests that entered one.
void removeBuiltinResource(const char* name);

} // namespace xnutil
