// mui::LabelWrapperQt: the peer of a control with a caption on the Qt
// binding. Its widget holds a QLabel for the caption and the control's own
// widget, which the control's native half makes in widget() and hands over
// with setControl(). The caption is the control's buddy, so Alt and the
// caption's marked letter give the control the focus; the focus given to the
// wrapper goes to the control as well.
#pragma once

#include "mui/LabelWrapper.h"
#include "mui/qt/MuCommonQt.h"

#include <QLabel>
#include <QPointer>

namespace mui {

class LabelWrapperQt : public MuCommonQt, public LabelWrapper {
public:
  /// Makes the wrapper's widget in the widget that `element`'s children would go into.
  LabelWrapperQt(MuElement* element, MinSizeCallback* control, Traits traits);

  /// Takes `control`, a child of widget(), as the wrapped control.
  void setControl(QWidget* control);
  QWidget* control() const noexcept { return control_; }
  QLabel* caption() const noexcept { return caption_; }

  int minWidth(int height) override;
  int minHeight(int width) override;
  /// Places caption and control again at the new size.
  void setSize(Size size) override;
  void styleChanged() override;

protected:
  Size captionTextSize() override;
  int captionHeight(int width) override;
  /// The middle of the first line for a text box of many lines, otherwise the
  /// middle of the control: single-line controls centre their text.
  bool controlTextCentre(const Rect& control, int* centre) override;
  Size wrapperSize() override { return getSize(); }
  void place(const Arrangement& arrangement) override;

private:
  QFont captionFont() const;
  QString captionText() const;

  QPointer<QLabel> caption_;
  QPointer<QWidget> control_;
};

} // namespace mui
