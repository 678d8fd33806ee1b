// The keys that the toolkit's logic reacts to, as X keysyms, the one key code
// that every binding translates its platform's keys into.
#pragma once

namespace mui {

enum Keysym : int {
  KeyBackSpace = 0xFF08,
  KeyTab = 0xFF09,
  KeyReturn = 0xFF0D,
  KeyEscape = 0xFF1B,
  KeyHome = 0xFF50,
  KeyLeft = 0xFF51,
  KeyUp = 0xFF52,
  KeyRight = 0xFF53,
  KeyDown = 0xFF54,
  KeyPageUp = 0xFF55,
  KeyPageDown = 0xFF56,
  KeyEnd = 0xFF57,
  KeyF4 = 0xFFC1,
  KeyDelete = 0xFFFF,
  KeyKpTab = 0xFF89,
  KeyKpEnter = 0xFF8D,
  KeyIsoLeftTab = 0xFE20,
};

/// Folds the keypad's and the shifted variants of a key into the key itself,
/// so that logic compares one code: keypad Enter is Return, Shift+Tab is Tab.
constexpr int normaliseKey(int keysym) noexcept {
  switch (keysym) {
  case KeyKpEnter:
    return KeyReturn;
  case KeyKpTab:
  case KeyIsoLeftTab:
    return KeyTab;
  default:
    return keysym;
  }
}

} // namespace mui
