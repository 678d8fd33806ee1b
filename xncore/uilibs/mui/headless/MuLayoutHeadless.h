// mui::MuLayoutHeadless: the layout of the headless binding, a plain peer
// that records the order its children were stacked in.
#pragma once

#include "mui/MuLayout.h"

namespace mui {

class MuLayoutHeadless : public MuLayout {
public:
  static MuLayout* make(MuContainer* parent, const char* name, int orientation);

  void orderChanged() override;

private:
  MuLayoutHeadless(MuContainer* parent, const char* name, int orientation);
};

} // namespace mui
