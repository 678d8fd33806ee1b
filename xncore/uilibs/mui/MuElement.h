// mui::MuElement: the base of every element of a form. It holds the fields
// that the rest of the program may read (name, label, flags, style, parent)
// and forwards geometry, visibility and focus to its native peer. Events are
// raised with notify(), which runs the observers of the element and of each
// ancestor up to the dialog; an observer may delete the very element that is
// notifying it.
#pragma once

#include "mui/Events.h"
#include "mui/Geometry.h"
#include "mui/MuCommon.h"
#include "mui/MuObserver.h"
#include "mui/MuStyle.h"
#include "plat/NonCopyable.h"
#include "plat/String.h"
#include "xnutil/MouseCallback.h"

#include <memory>
#include <vector>

namespace mui {

class MuContainer;
class MuDialog;

/// Receives the findings of checkOverflow().
class OverflowReporter {
public:
  virtual void report(MuElement* element, const char* message) = 0;
  virtual ~OverflowReporter() = default;
};

class MuElement : public MuObserver, public xnutil::MouseCallback, plat::NonCopyable {
public:
  enum Flags : int { Disabled = 1, Locked = 2 };

  virtual void setVisible(bool show);
  virtual bool isVisible();
  /// Locked bit; containers also report a locked visible child.
  virtual bool isLocked();
  /// The peer's focus, then the root dialog's focusChanged().
  virtual void setFocus();
  virtual bool hasFocus();
  /// This if it has the focus; containers ask their children in order.
  virtual MuElement* focusedElement();
  virtual void setToolTip(const char* text);
  /// Containers lay out their children after the peer took the size.
  virtual void setSize(Size size);
  virtual Size getSize();
  virtual void setPosition(Point position);
  /// Relative to the parent window.
  virtual Point getPosition();
  /// The parent's screen position plus this element's position.
  virtual Point getScreenPosition();
  virtual int minWidth(int height);
  virtual int minHeight(int width);
  /// Copies all fields into the element's own style, then styleChanged().
  virtual void setStyle(const MuStyle& style);
  virtual void styleChanged();
  virtual void scrollIntoView(Rect rect);
  virtual void invalidate(Rect rect);
  /// Controls with a label beside them align it to `labelWidth`.
  virtual void setLabelLayout(int labelWidth, int controlWidth);
  /// The width the element's label wants; minWidth(1) for elements without one.
  virtual int labelWidth();
  /// The element's lower-case type word.
  virtual const char* typeName();
  /// A text dump of the state, for drivers and tests.
  virtual plat::String describe();
  /// A dump of the element's items; empty unless the element has items.
  virtual plat::String describeItems();
  /// The element at the dotted `path` below this one; this for null.
  virtual MuElement* find(const char* path);
  /// Lays out again; containers only.
  virtual void relayout();
  /// Operates the element by name, as a user would; false for unknown actions.
  virtual bool perform(const char* action, const char* argument);
  virtual void checkOverflow(OverflowReporter& reporter);
  /// Called after every change of the flags.
  virtual void stateChanged();

  bool mouseEvent(const xnutil::MouseEvent& event) override;

  ~MuElement() override;

  /// An observer added twice is notified twice.
  void addObserver(MuObserver* observer);
  /// Removes every match, also from deliveries in progress.
  void removeObserver(MuObserver* observer);
  /// Delivers `event` to the observers of this element and of each ancestor.
  void notify(MuElement* source, int event);

  void setEnabled(bool enabled);
  void setLocked(bool locked);
  bool isEnabled() const noexcept { return (flags_ & Disabled) == 0; }
  /// Neither disabled nor locked: the state in which user actions apply.
  bool isOperable() const noexcept { return flags_ == 0; }
  int flags() const noexcept { return flags_; }
  /// False when this element or any ancestor is hidden.
  bool isShown();
  /// The dotted path from the dialog; null for a dialog.
  plat::String fullName();

  const char* name() const noexcept { return name_.get(); }
  const char* label() const noexcept { return label_.get(); }
  MuContainer* parent() const noexcept { return parent_; }
  /// The dialog at the root of the element's tree, or null when the tree has none.
  MuDialog* rootDialog();

  /// The element's own style, created with the defaults when absent.
  MuStyle& ownStyle();
  /// The first style on the way from this element up to its dialog.
  const MuStyle& effectiveStyle();
  void setTextColour(const char* name);
  void setBackgroundColour(const char* name);
  void setFontSize(int size);
  void setMouseCallback(xnutil::MouseCallback* callback) noexcept { mouseCallback_ = callback; }

  /// The native peer; null for elements that have none.
  MuCommon* common() const noexcept { return common_.get(); }

protected:
  MuElement(MuContainer* parent, const char* name, const char* label = nullptr);

  /// A native half creates its peer in its constructor.
  void setCommon(std::unique_ptr<MuCommon> common);
  void setLabelText(const char* label) { label_ = plat::String(label); }
  /// Lines of describe() common to every element.
  plat::String describeCommon();
  /// Only for the element's container when it adopts the element.
  friend class MuContainer;
  void setParent(MuContainer* parent) noexcept { parent_ = parent; }

private:
  struct Notification;

  std::unique_ptr<MuCommon> common_;
  std::vector<MuObserver*> observers_;
  Notification* activeNotification_ = nullptr;
  plat::String label_;
  plat::String name_;
  MuContainer* parent_ = nullptr;
  int flags_ = 0;
  std::unique_ptr<MuStyle> style_;
  xnutil::MouseCallback* mouseCallback_ = nullptr;

  void setFlag(int flag, bool on);
};

/// `text` with newline, carriage return and backslash escaped, as describe() shows labels.
plat::String escapeForDescribe(const char* text);

} // namespace mui
