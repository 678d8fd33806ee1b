// mui::EditWidgetQt: the control of a MuEditQt, a QLineEdit or a
// QPlainTextEdit that asks its element before a typed key, a paste, a cut, a
// deletion or a committed input method text reaches it, and swallows what the
// element's filter refuses. Shift+Return in a box of many lines presses the
// dialog's default button rather than making a new line.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

namespace mui {

class MuEditQt;

template <class Base>
class EditWidgetQt : public Base {
public:
  EditWidgetQt(MuEditQt* edit, QWidget* parent);

protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

private:
  MuEditQt* edit_;
};

using LineEditQt = EditWidgetQt<QLineEdit>;
using TextEditQt = EditWidgetQt<QPlainTextEdit>;

extern template class EditWidgetQt<QLineEdit>;
extern template class EditWidgetQt<QPlainTextEdit>;

} // namespace mui
