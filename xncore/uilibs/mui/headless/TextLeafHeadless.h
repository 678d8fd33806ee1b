// mui::TextLeafHeadless: a leaf element that shows a text on a headless
// peer, wrapping like a label or staying on one line. Layout tests and
// benchmarks build their trees from it, before any control is needed.
#pragma once

#include "mui/MuContainer.h"
#include "mui/headless/MuCommonHeadless.h"

#include <memory>

namespace mui {

class TextLeafHeadless : public MuElement {
public:
  static TextLeafHeadless* create(MuContainer* parent, const char* name, const char* text,
                                  bool singleLine = false) {
    auto* leaf = new TextLeafHeadless(parent, name, text, singleLine);
    parent->add(leaf);
    return leaf;
  }
  MuCommonHeadless* peer() { return MuCommonHeadless::of(this); }

private:
  TextLeafHeadless(MuContainer* parent, const char* name, const char* text, bool singleLine)
      : MuElement(parent, name, text) {
    MuCommonHeadless::Traits traits;
    traits.singleLine = singleLine;
    traits.focusable = true;
    setCommon(std::make_unique<MuCommonHeadless>(this, traits));
  }
};

} // namespace mui
