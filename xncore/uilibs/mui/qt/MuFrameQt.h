// mui::MuFrameQt: the frame of the Qt binding. A plain frame is a plain
// widget, a titled one a QGroupBox, a bordered one a QFrame box; a header or
// footer frame draws its one line itself. The child's widget stands in the
// frame's widget.
#pragma once

#include "mui/MuFrame.h"

namespace mui {

class MuFrameQt : public MuFrame {
public:
  static MuFrame* make(MuContainer* parent, const char* name, const char* title, int type);

private:
  MuFrameQt(MuContainer* parent, const char* name, const char* title, int type);
};

} // namespace mui
