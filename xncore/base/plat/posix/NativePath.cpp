#include "plat/Path.h"

namespace plat {

PathStyle nativePathStyle() noexcept {
  return PathStyle::Posix;
}

} // namespace plat
