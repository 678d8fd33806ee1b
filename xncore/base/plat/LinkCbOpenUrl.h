// plat::LinkCbOpenUrl: the link target that opens a clicked link with the
// desktop's own handler for its kind of address, usually the web browser.
#pragma once

#include "plat/Markup.h"

namespace plat {

class LinkCbOpenUrl : public Markup::LinkCallback {
public:
  /// Hands `url` to the desktop's opener, as one argument that nothing
  /// interprets, and returns without waiting for it. SystemException when the
  /// opener cannot be started; a null `url` does nothing.
  void linkClicked(const char* url) override;
};

} // namespace plat
