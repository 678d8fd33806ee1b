// mui::CheckWidgetQt: the widget of a MuCheckQt, a QCheckBox or QRadioButton
// that paints the style's box (or the check's state image) and the label,
// wrapped, where the abstract half measured them. It never advances its own
// state: its click goes to the element. On a radio the arrow keys move to the
// neighbouring member of the group and click it.
#pragma once

#include <QCheckBox>
#include <QRadioButton>

namespace mui {

class MuCheckQt;

template <class Base>
class CheckWidgetQt : public Base {
public:
  CheckWidgetQt(MuCheckQt* check, QWidget* parent);

protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// The element decides the next state.
  void nextCheckState() override {}
  /// All of the widget answers clicks, as the measure gave it room for the label.
  bool hitButton(const QPoint& position) const override { return this->rect().contains(position); }

private:
  MuCheckQt* check_;
};

using CheckBoxQt = CheckWidgetQt<QCheckBox>;
using RadioButtonQt = CheckWidgetQt<QRadioButton>;

extern template class CheckWidgetQt<QCheckBox>;
extern template class CheckWidgetQt<QRadioButton>;

} // namespace mui
