#include "mui/DisplayDensity.h"

namespace mui {

int primaryDisplayDpi() {
  return 96;
}

} // namespace mui
