#include "mui/qt/KeysQt.h"

#include "mui/Keys.h"

#include <QKeyEvent>

namespace mui {

int keysymFromQt(const QKeyEvent* event) {
  struct Named {
    int qt;
    int keysym;
  };
  static constexpr Named named[] = {
      {Qt::Key_Return, KeyReturn},
      {Qt::Key_Enter, KeyKpEnter},
      {Qt::Key_Escape, KeyEscape},
      {Qt::Key_Tab, KeyTab},
      {Qt::Key_Backtab, KeyIsoLeftTab},
      {Qt::Key_Backspace, KeyBackSpace},
      {Qt::Key_Delete, KeyDelete},
      {Qt::Key_Home, KeyHome},
      {Qt::Key_End, KeyEnd},
      {Qt::Key_Left, KeyLeft},
      {Qt::Key_Right, KeyRight},
      {Qt::Key_Up, KeyUp},
      {Qt::Key_Down, KeyDown},
      {Qt::Key_PageUp, KeyPageUp},
      {Qt::Key_PageDown, KeyPageDown},
      {Qt::Key_F4, KeyF4},
  };
  for (const Named& entry : named) {
    if (event->key() == entry.qt)
      return entry.keysym;
  }
  const QString text = event->text();
  if (text.isEmpty())
    return 0;
  const char32_t c = text.toUcs4().value(0);
  return c < 0x100 ? static_cast<int>(c) : static_cast<int>(0x01000000 + c);
}

} // namespace mui
