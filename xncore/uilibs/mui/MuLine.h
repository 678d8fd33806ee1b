// mui::MuLine: a horizontal or vertical rule between parts of a form, either
// filled with the text colour at a chosen thickness or etched, two pixels of
// shadow and light.
#pragma once

#include "mui/MuElement.h"

namespace mui {

class MuLine : public MuElement {
public:
  enum Type : int { Color = 0, Etched = 1 };

  static MuLine* create(MuContainer* parent, const char* name, bool horizontal, int type,
                        int thickness);

  /// The thickness of a coloured line; an etched line stays 2 pixels thick.
  virtual void setThickness(int thickness);

  int lineType() const noexcept { return lineType_; }
  bool isHorizontal() const noexcept { return horizontal_; }
  int thickness() const noexcept { return thickness_; }

  /// Across a vertical line, its thickness; along a horizontal one, the peer's.
  int minWidth(int height) override;
  /// Across a horizontal line, its thickness; along a vertical one, the peer's.
  int minHeight(int width) override;
  const char* typeName() override;
  plat::String describe() override;

protected:
  MuLine(MuContainer* parent, const char* name, bool horizontal, int type, int thickness);

private:
  static constexpr int etchedThickness = 2;

  int lineType_;
  bool horizontal_;
  int thickness_;
};

/// The hook through which MuLine::create makes the binding's line.
using MuLineFactory = MuLine* (*)(MuContainer* parent, const char* name, bool horizontal, int type,
                                  int thickness);
extern MuLineFactory muLineFactory;

} // namespace mui
