// Overwriting secrets before their memory is given back.
#pragma once

#include <cstddef>

namespace plat {

/// Zeroes `size` bytes at `data` in a way that the optimiser may not remove.
void secureWipe(void* data, std::size_t size) noexcept;

} // namespace plat
