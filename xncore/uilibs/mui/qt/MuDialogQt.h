// mui::MuDialogQt: the dialog of the Qt binding, a top-level window. The
// window's close box, its keys, its activation, size and theme changes are
// turned into the dialog's own operations and events; a modal dialog blocks
// input to its parent window.
#pragma once

#include "mui/MuDialog.h"

#include <QPointer>
#include <QPushButton>
#include <QWidget>

namespace mui {

class DialogWindowQt;

class MuDialogQt : public MuDialog {
public:
  static MuDialog* make(const char* name, const char* title, const Size* size, int style,
                        MuDialog* parentDialog, os::Window* parentWindow);
  ~MuDialogQt() override;

  void setTitle(const char* title) override;
  Size getDesktopSize() override;
  Size getWindowSize() override;
  void setMinimumSize(Size size) override;
  Point getScreenPosition() override;
  void setSize(Size size) override;
  void layout() override;
  void relayout() override;
  /// Also shows a default button as the default.
  void setButton(int which, MuElement* element) override;

  QWidget* window() const;
  /// The client size that the last layout was made for.
  Size laidOutSize() const noexcept { return laidOut_; }

protected:
  void centre() override;
  void showWindow(bool show) override;

private:
  MuDialogQt(const char* name, const char* title, const Size* size, int style,
             MuDialog* parentDialog, os::Window* parentWindow);

  QPointer<DialogWindowQt> window_;
  /// The widget shown as the default button; it may go before the dialog does.
  QPointer<QPushButton> defaultWidget_;
  Size laidOut_;
};

} // namespace mui
