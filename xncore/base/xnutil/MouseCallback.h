// xnutil::MouseCallback: who wants the mouse events of a window. The binding
// turns the platform's mouse messages into MouseEvent records; an element
// passes them on to its callback, and splitters and dialogs handle their own.
#pragma once

#include "rfb/Rect.h"

#include <cstdint>

namespace xnutil {

struct MouseEvent {
  enum Type : std::int32_t {
    ButtonDown = 0,
    ButtonUp = 1,
    DoubleClick = 2,
    /// A double-click time plus 100 ms after an up that no double click followed.
    SingleClick = 3,
    Move = 4,
    Leave = 5,
    ContextMenu = 6,
  };

  std::int32_t type = ButtonDown;
  /// Client coordinates of the window that got the event.
  rfb::Point position;
  void* source = nullptr;
};

class MouseCallback {
public:
  /// True when the event was consumed.
  virtual bool mouseEvent(const MouseEvent& event) = 0;
  virtual ~MouseCallback() = default;
};

} // namespace xnutil
