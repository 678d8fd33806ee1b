// mui::MuLineQt: the line of the Qt binding, a QFrame drawn as a horizontal
// or vertical line. An etched line is the frame's sunken line; a coloured one
// fills a band of its thickness, across the middle of the widget, with the
// text colour of its style.
#pragma once

#include "mui/MuLine.h"

namespace mui {

class MuLineQt : public MuLine {
public:
  static MuLine* make(MuContainer* parent, const char* name, bool horizontal, int type,
                      int thickness);

  void styleChanged() override;

private:
  MuLineQt(MuContainer* parent, const char* name, bool horizontal, int type, int thickness);
};

} // namespace mui
