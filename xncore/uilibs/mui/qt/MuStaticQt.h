// mui::MuStaticQt: the static of the Qt binding. A QLabel shows the plain
// text, cut with an ellipsis when it must stay on one line; a selectable
// static is a read-only QTextBrowser without a frame, and is measured by the
// same text layout that shows it.
#pragma once

#include "mui/MuStatic.h"

namespace mui {

class MuStaticQt : public MuStatic {
public:
  static MuStatic* make(MuContainer* parent, const char* name, const char* text, int type);

  int minWidth(int height) override;
  int minHeight(int width) override;

protected:
  void textChanged() override;

private:
  MuStaticQt(MuContainer* parent, const char* name, const char* text, int type);
};

} // namespace mui
