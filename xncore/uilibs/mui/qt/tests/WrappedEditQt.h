// A line edit with a caption beside it, made the way the input controls make
// theirs, for the tests of captions and of how static content looks.
#pragma once

#include "mui/LabelWrapper.h"
#include "mui/MuContainer.h"
#include "mui/qt/LabelWrapperQt.h"

#include <QLineEdit>
#include <memory>

namespace mui::test {

class WrappedEditQt : public MuElement, public LabelWrapper::MinSizeCallback {
public:
  static WrappedEditQt* create(MuContainer* parent, const char* name, const char* label) {
    auto* control = new WrappedEditQt(parent, name, label);
    parent->add(control);
    return control;
  }
  LabelWrapperQt* wrapper() { return static_cast<LabelWrapperQt*>(common()); }
  QLineEdit* edit() { return static_cast<QLineEdit*>(wrapper()->control()); }

  void setLabelLayout(int labelWidth, int controlWidth) override {
    LabelWrapper::of(this)->setLabelLayout(labelWidth, controlWidth);
  }
  int labelWidth() override { return LabelWrapper::of(this)->labelWidth(); }
  int minControlWidth() override { return 120; }
  int minControlHeight() override { return edit()->sizeHint().height(); }

private:
  WrappedEditQt(MuContainer* parent, const char* name, const char* label)
      : MuElement(parent, name, label) {
    auto wrapper = std::make_unique<LabelWrapperQt>(this, this, MuCommonQt::Traits());
    LabelWrapperQt* peer = wrapper.get();
    setCommon(std::move(wrapper));
    peer->setControl(new QLineEdit(peer->widget()));
  }
};

} // namespace mui::test
