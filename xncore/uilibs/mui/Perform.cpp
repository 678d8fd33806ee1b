#include "mui/Perform.h"

#include "mui/MuElement.h"
#include "plat/NumParse.h"

namespace mui {

bool canPerform(MuElement* element, bool needsShown) {
  return element->isOperable() && (!needsShown || element->isShown());
}

int decimalArgument(const char* argument) {
  std::int32_t value = 0;
  const char* cursor = argument;
  return plat::tryParseInt(value, cursor, 10) ? value : 0;
}

} // namespace mui
