#include "mui/headless/MuLineHeadless.h"

#include "mui/headless/MuCommonHeadless.h"

namespace mui {

MuLineHeadless::MuLineHeadless(MuContainer* parent, const char* name, bool horizontal, int type,
                               int thickness)
    : MuLine(parent, name, horizontal, type, thickness) {
  setCommon(std::make_unique<MuCommonHeadless>(this));
}

MuLine* MuLineHeadless::make(MuContainer* parent, const char* name, bool horizontal, int type,
                             int thickness) {
  return new MuLineHeadless(parent, name, horizontal, type, thickness);
}

} // namespace mui
