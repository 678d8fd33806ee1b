// mui::MuStaticHeadless: the static of the headless binding. Its peer shows
// and measures the text; a selectable static takes the focus, as a text
// that can be selected does.
#pragma once

#include "mui/MuStatic.h"

#include <string>

namespace mui {

class MuStaticHeadless : public MuStatic {
public:
  static MuStatic* make(MuContainer* parent, const char* name, const char* text, int type);

  /// The text as it shows at the present width: a single-line text that
  /// doesn't fit ends in an ellipsis.
  std::string shownText();

protected:
  void textChanged() override;

private:
  MuStaticHeadless(MuContainer* parent, const char* name, const char* text, int type);
};

} // namespace mui
