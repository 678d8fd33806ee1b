#include "mui/qt/MuSuperboxQt.h"

#include "mui/MuDialog.h"
#include "mui/qt/EventGlueQt.h"
#include "mui/qt/KeysQt.h"
#include "mui/qt/LabelWrapperQt.h"
#include "mui/qt/MuDialogQt.h"
#include "mui/qt/PopupDismisserQt.h"

#include <QKeyEvent>

namespace mui {

/// The superbox's text box: its keys pass the superbox's filter first.
class MuSuperboxQt::Edit : public QLineEdit {
public:
  Edit(MuSuperboxQt* superbox, QWidget* parent) : QLineEdit(parent), superbox_(superbox) {}

  void forgetSuperbox() noexcept { superbox_ = nullptr; }

protected:
  // Tab never reaches keyPressEvent: the focus moves on first.
  bool event(QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      auto* key = static_cast<QKeyEvent*>(event);
      if ((key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) && filtered(key))
        return true;
    }
    return QLineEdit::event(event);
  }

  void keyPressEvent(QKeyEvent* event) override {
    const bool alt = event->modifiers() & Qt::AltModifier;
    const bool dropDown = (event->key() == Qt::Key_F4 && !alt) ||
                          (alt && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down));
    if (superbox_ && dropDown) {
      callFromQt([this] { superbox_->dropDownKey(); });
      event->accept();
      return;
    }
    if (!filtered(event))
      QLineEdit::keyPressEvent(event);
  }

  void focusOutEvent(QFocusEvent* event) override {
    QLineEdit::focusOutEvent(event);
    if (superbox_)
      callFromQt([this] { superbox_->dismisser().dismiss(); });
  }

private:
  /// True when the superbox used the key up.
  bool filtered(QKeyEvent* event) {
    bool used = false;
    if (superbox_) {
      const int keysym = keysymFromQt(event);
      callFromQt([&] { used = superbox_->filterKey(keysym); });
    }
    event->setAccepted(used);
    return used;
  }

  MuSuperboxQt* superbox_;
};

MuSuperboxQt::MuSuperboxQt(MuContainer* parent, const char* name, const char* label,
                           Callback* callback, int popupHeight)
    : MuSuperbox(parent, name, label, callback, popupHeight) {
  auto wrapper = std::make_unique<LabelWrapperQt>(this, this, MuCommonQt::Traits());
  LabelWrapperQt* peer = wrapper.get();
  setCommon(std::move(wrapper));
  auto* edit = new Edit(this, peer->widget());
  edit_ = edit;
  QObject::connect(edit, &QLineEdit::textEdited, edit,
                   [this] { callFromQt([this] { textChangedByUser(); }); });
  peer->setControl(edit);
  new PopupDismisserQt(dismisser(), static_cast<MuDialogQt*>(getPopup())->window(), edit);
}

MuSuperboxQt::~MuSuperboxQt() {
  if (edit_)
    static_cast<Edit*>(edit_.data())->forgetSuperbox();
}

MuSuperbox* MuSuperboxQt::make(MuContainer* parent, const char* name, const char* label,
                               Callback* callback, int popupHeight) {
  return new MuSuperboxQt(parent, name, label, callback, popupHeight);
}

plat::String MuSuperboxQt::getText() {
  return plat::String(edit_->text().toUtf8().constData());
}

void MuSuperboxQt::setText(const char* text) {
  edit_->setText(QString::fromUtf8(text ? text : ""));
  if (edit_->hasFocus())
    edit_->selectAll();
}

void MuSuperboxQt::setCue(const char* text) {
  edit_->setPlaceholderText(QString::fromUtf8(text ? text : ""));
}

int MuSuperboxQt::boxHeight() {
  return edit_->sizeHint().height();
}

} // namespace mui
