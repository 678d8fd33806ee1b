// mui::MuSuperboxQt: the superbox of the Qt binding, a QLineEdit beside its
// caption (LabelWrapperQt). The edit's keys go through the superbox's key
// filter first; F4 and Alt with Up or Down are the drop-down key; every
// press of the application and the edit's loss of the focus may close the
// popup.
#pragma once

#include "mui/MuSuperbox.h"

#include <QLineEdit>
#include <QPointer>

namespace mui {

class LabelWrapperQt;

class MuSuperboxQt : public MuSuperbox {
public:
  static MuSuperbox* make(MuContainer* parent, const char* name, const char* label,
                          Callback* callback, int popupHeight);
  ~MuSuperboxQt() override;

  plat::String getText() override;
  void setText(const char* text) override;
  void setCue(const char* text) override;

  QLineEdit* lineEdit() const noexcept { return edit_; }

private:
  class Edit;

  MuSuperboxQt(MuContainer* parent, const char* name, const char* label, Callback* callback,
               int popupHeight);
  int boxHeight() override;

  QPointer<QLineEdit> edit_;
};

} // namespace mui
