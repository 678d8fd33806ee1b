// mui::MuLineHeadless: the line of the headless binding, a plain peer.
#pragma once

#include "mui/MuLine.h"

namespace mui {

class MuLineHeadless : public MuLine {
public:
  static MuLine* make(MuContainer* parent, const char* name, bool horizontal, int type,
                      int thickness);

private:
  MuLineHeadless(MuContainer* parent, const char* name, bool horizontal, int type, int thickness);
};

} // namespace mui
