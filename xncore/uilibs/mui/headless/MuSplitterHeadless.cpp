#include "mui/headless/MuSplitterHeadless.h"

#include "mui/headless/MuCommonHeadless.h"

namespace mui {

MuSplitterHeadless::MuSplitterHeadless(MuContainer* parent, const char* name, int orientation,
                                       int separatorStyle, bool fixed)
    : MuSplitter(parent, name, orientation, separatorStyle, fixed) {
  setCommon(std::make_unique<MuCommonHeadless>(this));
}

MuSplitter* MuSplitterHeadless::make(MuContainer* parent, const char* name, int orientation,
                                     int separatorStyle, bool fixed) {
  return new MuSplitterHeadless(parent, name, orientation, separatorStyle, fixed);
}

void MuSplitterHeadless::send(int type, Point position) {
  xnutil::MouseEvent event;
  event.type = type;
  event.position = position;
  event.source = this;
  mouseEvent(event);
}

void MuSplitterHeadless::moveMouse(Point position) {
  send(xnutil::MouseEvent::Move, position);
}

void MuSplitterHeadless::drag(Point position, std::initializer_list<Point> moves) {
  send(xnutil::MouseEvent::ButtonDown, position);
  for (Point move : moves)
    moveMouse(move);
  send(xnutil::MouseEvent::ButtonUp, moves.size() ? *(moves.end() - 1) : position);
}

void MuSplitterHeadless::beginDrag() {
  MuCommonHeadless::of(this)->record("captureMouse 1");
  resizeCursor_ = true;
}

void MuSplitterHeadless::endDrag() {
  MuCommonHeadless::of(this)->record("captureMouse 0");
  resizeCursor_ = false;
}

void MuSplitterHeadless::hover(Point) {
  resizeCursor_ = hoverIndex() >= 0;
}

} // namespace mui
