#include "mui/headless/MuFrameHeadless.h"

#include "mui/headless/MuCommonHeadless.h"

namespace mui {

MuFrameHeadless::MuFrameHeadless(MuContainer* parent, const char* name, const char* title, int type)
    : MuFrame(parent, name, title, type) {
  setCommon(std::make_unique<MuCommonHeadless>(this));
}

MuFrame* MuFrameHeadless::make(MuContainer* parent, const char* name, const char* title, int type) {
  return new MuFrameHeadless(parent, name, title, type);
}

} // namespace mui
