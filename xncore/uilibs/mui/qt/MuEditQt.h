// mui::MuEditQt: the edit of the Qt binding, a QLineEdit (with password echo)
// or a QPlainTextEdit beside its caption (LabelWrapperQt). Before an input
// reaches the control, the abstract half's filter decides on the text it
// would make; a change that came another way (the context menu, a drop, undo,
// word deletion) is put to the filter afterwards and undone when refused, so
// that the filter holds however the text changes. A password's text is
// copied only into secure buffers, and each text the control lets go is
// wiped.
#pragma once

#include "mui/MuEdit.h"

#include <QPointer>
#include <QString>
#include <functional>

class QKeyEvent;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace mui {

class EditText;
class LabelWrapperQt;

class MuEditQt : public MuEdit {
public:
  enum KeyVerdict { NotAnEdit, Approved, Refused };

  static MuEdit* make(MuContainer* parent, const char* name, const char* label, int type,
                      int options);
  ~MuEditQt() override;

  void setText(const char* text) override;
  plat::String getText() override;
  void setCue(const char* text) override;
  void select(int start, int length) override;
  int getSelection(int* length) override;
  void setFilter(Filter* filter) override;
  int minControlWidth() override;

  LabelWrapperQt* peer();
  QWidget* control() const;
  /// Null for a box of many lines.
  QLineEdit* lineEdit() const;
  /// Null for a box of one line.
  QPlainTextEdit* textEdit() const;

  // For the control's widget.
  /// Whether the key may reach the control, or concerns no change of the text.
  KeyVerdict verdictOnKey(const QKeyEvent* event);
  /// Whether `typed` may be typed, character by character.
  bool admitsTyped(const QString& typed);
  /// Lets the control act; with `approved` the change it makes needs no second look.
  void change(bool approved, const std::function<void()>& act);
  void pressDefaultButton();

protected:
  int lineHeight() override;
  int lineCount(int width) override;
  int nativeFrameHeight() override;

private:
  MuEditQt(MuContainer* parent, const char* name, const char* label, int type, int options);

  QString widgetText() const;
  /// The control's text with its selection.
  EditText current() const;
  /// Shows `text` without it counting as the user's change; the selection goes to its end.
  void show(const QString& text);
  /// The control's text changed: the filter's second look, then EventChanged.
  void changedInWidget();
  /// Overwrites `text` when nobody else holds it any more, if it is a password's.
  void wipeReleased(QString& text) const;

  QPointer<QWidget> control_;
  /// The text the filter last accepted, to go back to.
  QString accepted_;
  bool approved_ = false;
  bool showing_ = false;
};

} // namespace mui
