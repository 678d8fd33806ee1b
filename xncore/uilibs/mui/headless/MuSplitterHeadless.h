// mui::MuSplitterHeadless: the splitter of the headless binding. It records
// the drag's capture and the cursor over separators, and gives tests the
// user's mouse in the splitter's own coordinates.
#pragma once

#include "mui/MuSplitter.h"

namespace mui {

class MuSplitterHeadless : public MuSplitter {
public:
  static MuSplitter* make(MuContainer* parent, const char* name, int orientation,
                          int separatorStyle, bool fixed);

  /// Whether the resizing cursor shows.
  bool showsResizeCursor() const noexcept { return resizeCursor_; }
  /// The user presses the left button at `position`, moves to each of `moves`, and lets go.
  void drag(Point position, std::initializer_list<Point> moves);
  void moveMouse(Point position);

protected:
  void beginDrag() override;
  void endDrag() override;
  void hover(Point position) override;

private:
  MuSplitterHeadless(MuContainer* parent, const char* name, int orientation, int separatorStyle,
                     bool fixed);
  void send(int type, Point position);

  bool resizeCursor_ = false;
};

} // namespace mui
