// The closed list of element events. An event travels from the element that
// raised it up to its dialog; the observers of every element on the way see it.
#pragma once

namespace mui {

enum Event : int {
  /// A control's value changed, by the user or by perform().
  EventChanged = 0,
  /// A button, a choice's "click", the default or cancel key.
  EventClicked = 1,
  /// A list row was double-clicked or Return was pressed on it.
  EventActivated = 2,
  /// A dialog was closed by the user, after it was hidden.
  EventClosed = 3,
  EventWindowActive = 4,
  EventWindowInactive = 5,
  /// A dialog after each layout of a non-empty client area.
  EventResized = 6,
  EventThemeChanged = 7,
};

} // namespace mui
