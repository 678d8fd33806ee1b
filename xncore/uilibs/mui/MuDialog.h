// mui::MuDialog: a window, and the root of an element tree. It owns panels
// (a main area with optional strips above and below), lays them out with its
// margin, can fit its height to its content, and owns window behaviour: the
// default and cancel buttons, closing, modality (a CodeModal showing runs the
// application loop's turns until the dialog is hidden), dragging by the
// background and hiding on a click elsewhere. It is created hidden and owned
// by whoever made it; showing and hiding never recreate its window.
#pragma once

#include "mui/MuContainer.h"
#include "mui/PopupDismisser.h"

#include <memory>
#include <vector>

namespace os {
class Window;
}

namespace mui {

class MuDialog : public MuContainer {
public:
  /// Style flags given to create().
  enum Style : int {
    FixedSize = 0x0001,
    NoHide = 0x0002,
    DisableClose = 0x0004,
    WindowModal = 0x0008,
    CodeModal = 0x0010,
    Popup = 0x0020,
    FitHeight = 0x0040,
    Topmost = 0x0080,
    NoCaption = 0x0100,
    Border = 0x0200,
    KeepForeground = 0x0400,
    DesktopChild = 0x0800,
    AbsFixedSize = 0x1000,
    DismissOnOutsideClick = 0x2000,
  };
  /// Where a panel stands.
  enum PanelPosition : int { PanelMain = 0, PanelTop = 1, PanelBottom = 2 };
  /// The two buttons that the Return and Escape keys press.
  enum Button : int { DefaultButton = 0, CancelButton = 1 };

  class ActivateCallback {
  public:
    /// True when the default (0) or cancel (1) activation was handled.
    virtual bool activate(int which, MuDialog* dialog) = 0;
    virtual ~ActivateCallback() = default;
  };
  class MouseDownCallback {
  public:
    /// True when the press was handled.
    virtual bool mouseDown(MuDialog* dialog) = 0;
    virtual ~MouseDownCallback() = default;
  };
  class MoveCallback {
  public:
    /// Whether a left press on `element` at `position` starts dragging the window.
    virtual bool canMove(MuDialog* dialog, MuElement* element, Point* position) = 0;
    virtual ~MoveCallback() = default;
  };
  class CloseCallback {
  public:
    /// False cancels a close by the user.
    virtual bool closing(MuDialog* dialog) = 0;
    virtual ~CloseCallback() = default;
  };

  /// Starts a drag on a press on any element but a button.
  static MoveCallback* moveCallbackExceptButtons();
  /// Starts a drag on a press on any element but a button, a list or a check box.
  static MoveCallback* moveCallbackExceptControls();

  /// A hidden dialog of client size `size` (units already turned into pixels).
  static MuDialog* create(const char* name, const char* title, const Size* size, int style,
                          MuDialog* parentDialog, os::Window* parentWindow);

  /// The least size the user can drag the window to.
  virtual void setMinimumSize(Size size);
  virtual os::Window* getWindow();
  virtual void setParentWindow(os::Window* window);
  /// Which is DefaultButton or CancelButton.
  virtual void setButton(int which, MuElement* element);
  virtual void setTitle(const char* title) = 0;
  /// The outer size, frame included.
  virtual Size getWindowSize();
  virtual Size getDesktopSize() = 0;
  virtual void setClipboardText(const char* text);
  /// Called by setFocus() of any element of the dialog.
  virtual void focusChanged(MuElement* element);

  MuElement* getChild(int index) override;
  int childCount() override;
  void add(MuElement* element) override;
  void remove(MuElement* element) override;
  void removeAll() override;
  void layout() override;
  /// layout(), then fitting the height.
  void relayout() override;
  /// Lays out, centres when unplaced, shows; under CodeModal, runs the
  /// application loop until the dialog is hidden again, which is the only
  /// thing that ends the run besides a quit of the loop.
  void setVisible(bool show) override;
  /// Marks the dialog as placed: it is not centred again.
  void setPosition(Point position) override;
  Point getScreenPosition() override;
  const char* typeName() override;
  plat::String describe() override;

  void setPanelPosition(MuElement* element, int position);
  /// Presses the default (0) or cancel (1) button; false when nothing took it.
  bool activate(int which);
  /// Return activates the default button, Escape the cancel button.
  bool activateByKey(int keysym);
  /// Whether `keysym` is one of the two keys, and which.
  static bool keyToButton(int keysym, int* which);
  /// What the user's close of the window does: ask, hide, then EventClosed.
  void userClose();
  /// Sets the height to the content's, as the style asks.
  void fitHeight();

  /// The binding's report of a left press on `element` at `position` (client
  /// coordinates of the dialog), `screenPosition` on the screen: the
  /// mouse-down callback, then a drag by the background as the move callback
  /// allows. True when either took the press.
  bool mousePressed(MuElement* element, Point position, Point screenPosition);
  /// The pointer moved to `screenPosition`; moves the window while dragging.
  void mouseMoved(Point screenPosition);
  /// The button went up or the window lost the mouse: the drag ends.
  void mouseReleased();
  bool isDragging() const noexcept { return dragging_; }
  /// The binding's report that the window became active or stopped being so.
  void activationChanged(bool active);
  /// Whether a CodeModal showing is running the loop now.
  bool runningCodeModal() const noexcept;
  void setActivateCallback(ActivateCallback* callback) noexcept { activateCallback_ = callback; }
  void setMouseDownCallback(MouseDownCallback* callback) noexcept { mouseDownCallback_ = callback; }
  void setMoveCallback(MoveCallback* callback) noexcept { moveCallback_ = callback; }
  void setCloseCallback(CloseCallback* callback) noexcept { closeCallback_ = callback; }

  int dialogStyle() const noexcept { return dialogStyle_; }
  int initialHeight() const noexcept { return initialHeight_; }
  int margin() const noexcept { return margin_; }
  void setMargin(int margin) noexcept { margin_ = margin; }
  os::Window* parentWindow() const noexcept { return parentWindow_; }
  bool isPositioned() const noexcept { return positioned_; }
  MuElement* button(int which) const noexcept { return buttons_[which]; }
  ActivateCallback* activateCallback() const noexcept { return activateCallback_; }
  MouseDownCallback* mouseDownCallback() const noexcept { return mouseDownCallback_; }
  MoveCallback* moveCallback() const noexcept { return moveCallback_; }
  CloseCallback* closeCallback() const noexcept { return closeCallback_; }
  bool isModal() const noexcept { return (dialogStyle_ & (WindowModal | CodeModal)) != 0; }

  ~MuDialog() override;

protected:
  MuDialog(const char* name, const Size* size, int style, MuDialog* parentDialog,
           os::Window* parentWindow);

  /// Binding: shows or hides the window itself, activating it as the style says.
  virtual void showWindow(bool show);
  /// Enables or disables the parent window around a modal showing.
  virtual void enableParentWindow(bool enable);
  /// Binding: captures the mouse with the four-way arrow for a drag, and gives it back.
  virtual void captureMouse(bool capture);
  /// What hides a DismissOnOutsideClick dialog; the binding feeds it the presses.
  PopupDismisser& dismisser() noexcept { return dismisser_; }

private:
  struct Panel {
    std::unique_ptr<MuElement> element;
    int position = PanelMain;
  };
  class Registration {
  public:
    explicit Registration(MuDialog* dialog);
    ~Registration();
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;

  private:
    MuDialog* dialog_;
  };

  struct ModalRun;

  std::vector<Panel>::iterator panelOf(MuElement* element);
  void runModal();

  std::vector<Panel> panels_;
  int dialogStyle_;
  int initialHeight_;
  int margin_;
  os::Window* parentWindow_;
  bool positioned_ = false;
  MuElement* buttons_[2] = {nullptr, nullptr};
  ActivateCallback* activateCallback_ = nullptr;
  MouseDownCallback* mouseDownCallback_ = nullptr;
  MoveCallback* moveCallback_ = nullptr;
  CloseCallback* closeCallback_ = nullptr;
  ModalRun* modalRun_ = nullptr;
  bool dragging_ = false;
  Point dragStart_;
  Point dragOrigin_;
  PopupDismisser dismisser_{this};
  Registration registration_;
};

/// The hook through which MuDialog::create makes the binding's dialog.
using MuDialogFactory = MuDialog* (*)(const char* name, const char* title, const Size* size,
                                      int style, MuDialog* parentDialog, os::Window* parentWindow);
extern MuDialogFactory muDialogFactory;

} // namespace mui
