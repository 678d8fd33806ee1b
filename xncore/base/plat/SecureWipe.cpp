#include "plat/SecureWipe.h"

namespace plat {

void secureWipe(void* data, std::size_t size) noexcept {
  // Writes through a volatile pointer are observable behaviour, so the
  // compiler must keep them even though the memory is about to be freed.
  volatile unsigned char* bytes = static_cast<volatile unsigned char*>(data);
  for (std::size_t i = 0; i < size; ++i)
    bytes[i] = 0;
}

} // namespace plat
