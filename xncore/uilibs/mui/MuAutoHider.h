// mui::MuAutoHider: an auto-hiding panel as a toolkit object. It holds a
// borderless dialog that lies against one edge of a parent window and slides
// off it, driven by a ui::AutoHider that the binding supplies. It is no
// element: whoever made it owns it. It hears the hider's state changes first
// and hands them on to its owner's callback.
#pragma once

#include "mui/Geometry.h"
#include "mui/MuDialog.h"
#include "plat/NonCopyable.h"
#include "ui/AutoHider.h"

namespace os {
class Window;
}

namespace mui {

class MuElement;
class MuObserver;

class MuAutoHider : public ui::AutoHider::Callback, plat::NonCopyable {
public:
  /// A panel named `name` of client size `size` against `edge`, keeping
  /// `revealSize` pixels in view when hidden; `callback` may be null. It
  /// shows once it has a parent window.
  static MuAutoHider* create(const char* name, const Size* size, int edge, int revealSize,
                             ui::AutoHider::Callback* callback);

  void stateChanged(bool sliding, bool revealed, ui::AutoHider* hider) override;

  /// The panel's dialog, to build the panel's content in.
  virtual MuDialog* getDialog() = 0;
  /// Puts the panel on `parent`'s edge and shows it; null takes it off.
  virtual void setParentWindow(os::Window* parent) = 0;
  virtual void setMargin(int margin) = 0;
  virtual void setBackgroundColour(const char* name);
  virtual void addObserver(MuObserver* observer, bool add);
  virtual void relayout();
  virtual void setButton(int which, MuElement* element);
  virtual void setMouseDownCallback(MuDialog::MouseDownCallback* callback);
  virtual os::Window* getWindow();

  /// The hider that slides the panel; null until a binding supplies it.
  ui::AutoHider* hider() const noexcept { return hider_; }

protected:
  explicit MuAutoHider(ui::AutoHider::Callback* callback) noexcept : callback_(callback) {}

  ui::AutoHider* hider_ = nullptr;

private:
  ui::AutoHider::Callback* callback_;
};

using MuAutoHiderFactory = MuAutoHider* (*)(const char* name, const Size* size, int edge,
                                            int revealSize, ui::AutoHider::Callback* callback);
extern MuAutoHiderFactory muAutoHiderFactory;

} // namespace mui
