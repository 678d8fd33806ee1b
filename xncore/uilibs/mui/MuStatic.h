// mui::MuStatic: a plain text shown in a form, left-aligned, centred or
// right-aligned, as a heading, or selectable so that the user can copy it.
// Its text is the element's label. A single-line static stays on one line
// and ends in an ellipsis after the last word that fits.
#pragma once

#include "mui/MuElement.h"

namespace mui {

class MuStatic : public MuElement {
public:
  enum Type : int {
    Text = 0,
    LeftText = 1,
    CenteredText = 2,
    RightText = 3,
    /// Bold and larger, from the start.
    Heading = 4,
    Detail = 5,
    /// The user can select and copy the text.
    Selectable = 6,
  };

  static MuStatic* create(MuContainer* parent, const char* name, const char* text, int type);

  /// Shows `text`. `bold` makes the text bold for good: a later false doesn't
  /// take it back. `singleLine` keeps it on one line, with an ellipsis when it
  /// doesn't fit.
  virtual void setText(const char* text, bool bold, bool singleLine);

  int staticType() const noexcept { return staticType_; }
  bool isSingleLine() const noexcept { return singleLine_; }
  /// -1 left, 0 centre, 1 right.
  int alignment() const noexcept;

  const char* typeName() override;
  plat::String describe() override;

protected:
  MuStatic(MuContainer* parent, const char* name, const char* text, int type);

  /// The binding shows the element's new label; singleLine_ is already set.
  virtual void textChanged() = 0;

private:
  int staticType_;
  bool singleLine_ = false;
};

/// The hook through which MuStatic::create makes the binding's static.
using MuStaticFactory = MuStatic* (*)(MuContainer* parent, const char* name, const char* text,
                                      int type);
extern MuStaticFactory muStaticFactory;

} // namespace mui
