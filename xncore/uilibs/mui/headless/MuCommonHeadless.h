// mui::MuCommonHeadless: the peer of the headless binding. It keeps a
// window's state in memory (visible, enabled, focus, text, tool tip,
// geometry), measures its text with the headless text model, and records each
// call that changes something, so that tests can read what the toolkit did.
// Peers start enabled and visible at (0, 0) with size (1, 1), as native
// windows do; a dialog's peer starts hidden.
#pragma once

#include "mui/MuCommon.h"
#include "plat/String.h"

#include <string>
#include <vector>

namespace mui {

class MuElement;

class MuCommonHeadless : public MuCommon {
public:
  /// How the peer's text is measured and whether it can take the focus.
  struct Traits {
    /// Button-like elements treat '&' as a mnemonic mark.
    bool mnemonics = false;
    bool singleLine = false;
    /// Controls take the focus; containers and labels don't.
    bool focusable = false;
    bool startsVisible = true;
  };

  MuCommonHeadless(MuElement* element, Traits traits);
  explicit MuCommonHeadless(MuElement* element) : MuCommonHeadless(element, Traits()) {}
  ~MuCommonHeadless() override;

  void setVisible(bool show) override;
  bool isVisible() override { return visible_; }
  /// Disabling the focused peer first moves the focus on, as a platform does.
  void setEnabled(bool enabled) override;
  /// Takes the focus only while the dialog is shown or in a CodeModal run, and
  /// only for a focusable peer.
  void setFocus() override;
  bool hasFocus() override;
  void setToolTip(const char* text) override;
  void setSize(Size size) override;
  Size getSize() override { return size_; }
  int minWidth(int height) override;
  int minHeight(int width) override;
  void setPosition(Point position) override;
  Point getPosition() override { return position_; }
  void styleChanged() override;
  void scrollIntoView(Rect rect) override;
  void invalidate(Rect rect) override;

  MuElement* element() const noexcept { return element_; }
  bool isEnabled() const noexcept { return enabled_; }
  bool isFocusable() const noexcept { return traits_.focusable; }
  /// Whether the user can reach the control: enabled, and shown with all its ancestors.
  bool acceptsInput();
  /// The text that the peer shows and measures.
  const char* text() const noexcept { return text_.orEmpty(); }
  void setText(const char* text) { text_ = plat::String(text); }
  const char* toolTip() const noexcept { return toolTip_.get(); }
  void setSingleLine(bool singleLine) noexcept { traits_.singleLine = singleLine; }

  /// Each call that changed something, as "operation arguments".
  const std::vector<std::string>& calls() const noexcept { return calls_; }
  void clearCalls() noexcept { calls_.clear(); }
  void record(std::string call) { calls_.push_back(std::move(call)); }

  /// The headless peer of `element`, or null when it has none of this binding.
  static MuCommonHeadless* of(MuElement* element);
  /// The peer that holds the keyboard focus, if any.
  static MuCommonHeadless* focused() noexcept;
  /// Moves the focus to the next focusable, enabled and shown peer of the same
  /// dialog after this one, in tree order, wrapping around; none if there is none.
  void focusNext();

private:
  MuElement* element_;
  Traits traits_;
  bool visible_;
  bool enabled_ = true;
  Size size_{1, 1};
  Point position_;
  plat::String text_;
  plat::String toolTip_;
  std::vector<std::string> calls_;
};

} // namespace mui
