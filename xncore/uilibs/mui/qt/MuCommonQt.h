// mui::MuCommonQt: the peer of the Qt binding, one QWidget per element. The
// widget is a child of the widget of the element's nearest ancestor that has
// one, and it gets its geometry only from the toolkit's layout. The peer
// measures the element's text with the font of its effective style, shows
// tool tips, keeps the widget's accessible name in line with the element's
// name and label, and, where asked, turns mouse events into the toolkit's
// mouse records for the element.
#pragma once

#include "mui/MuCommon.h"
#include "plat/String.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace mui {

class MuElement;
class MuContainer;

class MuCommonQt : public QObject, public MuCommon {
public:
  struct Traits {
    /// The text's '&' marks a mnemonic, as on buttons; elsewhere it is literal.
    bool mnemonics = false;
    bool singleLine = false;
    /// Frames, layouts and splitters report mouse events to their element.
    bool translateMouse = false;
  };

  /// Takes ownership of `widget`, which the native half made for `element`.
  MuCommonQt(MuElement* element, QWidget* widget, Traits traits);
  MuCommonQt(MuElement* element, QWidget* widget) : MuCommonQt(element, widget, Traits()) {}
  ~MuCommonQt() override;

  void setVisible(bool show) override;
  bool isVisible() override;
  void setEnabled(bool enabled) override;
  void setFocus() override;
  bool hasFocus() override;
  void setToolTip(const char* text) override;
  void setSize(Size size) override;
  Size getSize() override;
  int minWidth(int height) override;
  int minHeight(int width) override;
  void setPosition(Point position) override;
  Point getPosition() override;
  void styleChanged() override;
  void scrollIntoView(Rect rect) override;
  void invalidate(Rect rect) override;

  QWidget* widget() const noexcept { return widget_; }
  MuElement* element() const noexcept { return element_; }
  /// The widget in which children's widgets stand; the peer's own by default.
  QWidget* childArea() const noexcept { return childArea_ ? childArea_.data() : widget_.data(); }
  void setChildArea(QWidget* area) noexcept { childArea_ = area; }
  /// The text that is measured, and that names the widget for accessibility.
  const QString& text() const noexcept { return text_; }
  void setText(const QString& text);
  void setText(const char* text) { setText(QString::fromUtf8(text ? text : "")); }
  void setSingleLine(bool singleLine) noexcept { traits_.singleLine = singleLine; }
  /// Names the widget again after the element's label changed.
  void updateAccessibleName();

  /// The Qt peer of `element`, or null.
  static MuCommonQt* of(MuElement* element);
  /// The widget that the children of `parent` go into: that of its nearest
  /// ancestor (itself included) with a Qt peer; null for none.
  static QWidget* parentWidgetFor(MuContainer* parent);
  /// The element of `root`'s tree that shows `widget`, or else the nearest of
  /// its parent widgets; null when none belongs to the tree.
  static MuElement* elementShowing(MuElement* root, QWidget* widget);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  /// True when the element consumed the event.
  bool deliverMouse(int type, QPoint position);
  /// Gives the focus to the next widget that takes it, so a disabled one doesn't keep it.
  void moveFocusOn();

  MuElement* element_;
  QPointer<QWidget> widget_;
  QPointer<QWidget> childArea_;
  Traits traits_;
  QString text_;
  QTimer singleClick_;
  QPoint lastRelease_;
  /// The release that ends a double click starts no single click.
  bool afterDoubleClick_ = false;
};

} // namespace mui
