#include "mui/headless/MuLayoutHeadless.h"

#include "mui/headless/MuCommonHeadless.h"

namespace mui {

MuLayoutHeadless::MuLayoutHeadless(MuContainer* parent, const char* name, int orientation)
    : MuLayout(parent, name, orientation) {
  setCommon(std::make_unique<MuCommonHeadless>(this));
}

MuLayout* MuLayoutHeadless::make(MuContainer* parent, const char* name, int orientation) {
  return new MuLayoutHeadless(parent, name, orientation);
}

void MuLayoutHeadless::orderChanged() {
  MuCommonHeadless::of(this)->record("orderChanged");
}

} // namespace mui
