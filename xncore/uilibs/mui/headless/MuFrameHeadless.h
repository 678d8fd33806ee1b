// mui::MuFrameHeadless: the frame of the headless binding, a plain peer that
// shows the frame's title.
#pragma once

#include "mui/MuFrame.h"

namespace mui {

class MuFrameHeadless : public MuFrame {
public:
  static MuFrame* make(MuContainer* parent, const char* name, const char* title, int type);

private:
  MuFrameHeadless(MuContainer* parent, const char* name, const char* title, int type);
};

} // namespace mui
