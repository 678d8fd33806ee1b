// mui::MuFrame: a container of one child with a margin around it and a look:
// plain, a titled group box, a line along the bottom (a header) or the top
// (a footer, as under a button bar), or a thin border. A style set on a frame
// reaches its child, and its background colour fills the frame behind it.
#pragma once

#include "mui/MuContainer.h"

namespace mui {

class MuFrame : public MuContainerSingle {
public:
  enum Type : int { Plain = 0, Titled = 1, Header = 2, Footer = 3, Bordered = 4 };

  static MuFrame* create(MuContainer* parent, const char* name, const char* title, int type);

  /// Stores the margin on each axis; the next layout uses it.
  virtual void setMargin(Size margin);

  Size margin() const noexcept { return margin_; }
  int frameType() const noexcept { return frameType_; }
  /// The title as a group box shows it: every '&' doubled, so that none is
  /// taken for a mnemonic. Null without a title.
  plat::String shownTitle() const;

  int minWidth(int height) override;
  int minHeight(int width) override;
  /// The child fills the frame inside its margin, below the title of a titled frame.
  void layout() override;
  /// Lays out and repaints the frame.
  void relayout() override;
  const char* typeName() override;
  plat::String describe() override;

protected:
  MuFrame(MuContainer* parent, const char* name, const char* title, int type);

private:
  int frameType_;
  Size margin_;
};

/// The hook through which MuFrame::create makes the binding's frame.
using MuFrameFactory = MuFrame* (*)(MuContainer* parent, const char* name, const char* title,
                                    int type);
extern MuFrameFactory muFrameFactory;

} // namespace mui
