// mui::MuDialogQt: the dialog of the Qt binding, a top-level window. The
// window's close box, its keys, its activation, size and theme changes and
// the presses on its background are turned into the dialog's own operations
// and events. A modal dialog blocks input to its parent window through Qt's
// window modality; its CodeModal run is a nested turn of the application
// loop, never a loop of Qt's own.
#pragma once

#include "mui/MuDialog.h"
#include "mui/qt/WindowQt.h"

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
  os::Window* getWindow() override { return &windowService_; }
  /// Makes the window a child window of `window`, so that Qt keeps it above
  /// its parent and a modal showing blocks the parent.
  void setParentWindow(os::Window* window) override;
  void setClipboardText(const char* text) override;
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
  void showWindow(bool show) override;
  /// Qt's window modality blocks the parent while the dialog shows.
  void enableParentWindow(bool) override {}
  void captureMouse(bool capture) override;

private:
  MuDialogQt(const char* name, const char* title, const Size* size, int style,
             MuDialog* parentDialog, os::Window* parentWindow);

  void applyModality();

  QPointer<DialogWindowQt> window_;
  /// The widget shown as the default button; it may go before the dialog does.
  QPointer<QPushButton> defaultWidget_;
  WindowQt windowService_;
  Size laidOut_;
};

} // namespace mui
