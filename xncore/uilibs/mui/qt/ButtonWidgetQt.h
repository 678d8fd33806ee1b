// mui::ButtonWidgetQt: the widget of a MuButtonQt. It paints the button as
// its kind and options ask: the style's bevel for a framed button (on a
// HotFrame button only while hot or pressed), the image of the present state,
// the label aligned and wrapped with its mnemonic, a drop-down arrow, and a
// focus mark where no bevel shows one. Return on the dialog's default button
// is left to the dialog, whose own activation then runs.
#pragma once

#include <QPushButton>

namespace mui {

class MuButtonQt;

class ButtonWidgetQt : public QPushButton {
public:
  ButtonWidgetQt(MuButtonQt* button, QWidget* parent);

protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

private:
  /// The state whose image shows: pressed, hot or normal; always normal while disabled.
  int imageState() const;
  bool showsFrame() const;
  void paintContent(QPainter& painter, QRect area);

  MuButtonQt* button_;
};

} // namespace mui
