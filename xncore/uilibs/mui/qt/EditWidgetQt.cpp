#include "mui/qt/EditWidgetQt.h"

#include "mui/qt/MuEditQt.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <type_traits>

namespace mui {

template <class Base>
EditWidgetQt<Base>::EditWidgetQt(MuEditQt* edit, QWidget* parent) : Base(parent), edit_(edit) {}

template <class Base>
void EditWidgetQt<Base>::keyPressEvent(QKeyEvent* event) {
  if constexpr (std::is_same_v<Base, QPlainTextEdit>) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && (event->modifiers() & Qt::ShiftModifier)) {
      event->accept();
      edit_->pressDefaultButton();
      return;
    }
  }
  switch (edit_->verdictOnKey(event)) {
  case MuEditQt::Refused:
    event->accept();
    return;
  case MuEditQt::Approved:
    edit_->change(true, [&] { Base::keyPressEvent(event); });
    return;
  case MuEditQt::NotAnEdit:
    edit_->change(false, [&] { Base::keyPressEvent(event); });
    return;
  }
}

template <class Base>
void EditWidgetQt<Base>::inputMethodEvent(QInputMethodEvent* event) {
  if (event->commitString().isEmpty() || edit_->admitsTyped(event->commitString())) {
    edit_->change(true, [&] { Base::inputMethodEvent(event); });
    return;
  }
  // The composition goes on; only the refused text is dropped.
  QInputMethodEvent kept(event->preeditString(), event->attributes());
  Base::inputMethodEvent(&kept);
}

template class EditWidgetQt<QLineEdit>;
template class EditWidgetQt<QPlainTextEdit>;

} // namespace mui
