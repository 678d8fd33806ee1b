// mui::MuLayoutQt: the layout of the Qt binding, a plain widget whose
// children's widgets are stacked and tabbed through in the layout's order.
#pragma once

#include "mui/MuLayout.h"

namespace mui {

class MuLayoutQt : public MuLayout {
public:
  static MuLayout* make(MuContainer* parent, const char* name, int orientation);

  void orderChanged() override;
  void relayout() override;

private:
  MuLayoutQt(MuContainer* parent, const char* name, int orientation);
};

} // namespace mui
