// ui::AutoHider: the mechanics of a panel that lies against one edge of a
// parent window and slides off it, keeping a strip of `revealSize` pixels in
// view. It knows nothing of windows: a Widget places the panel and tells the
// sizes, and the slide is animated by a timer of the thread, each step moving
// as far as the time that really passed allows, so a late timer doesn't slow
// the slide. The Callback hears when a slide starts and when it ends.
#pragma once

#include "plat/Ticks.h"
#include "plat/Timer.h"
#include "rfb/Rect.h"

#include <cstdint>

namespace ui {

class AutoHider : public plat::Timer::Callback {
public:
  /// The edge the panel lies against. Top and bottom change places on a
  /// flipped widget.
  enum Edge : std::int32_t { EdgeTop = 0, EdgeBottom = 1, EdgeLeft = 2, EdgeRight = 3 };

  class Callback {
  public:
    /// A slide toward shown (`revealed`) or hidden starts (`sliding`) or reaches its end.
    virtual void stateChanged(bool sliding, bool revealed, AutoHider* hider) = 0;
    virtual ~Callback() = default;
  };

  /// What the hider moves: the panel's window, seen through the platform.
  class Widget {
  public:
    virtual ~Widget() = default;
    /// Moves the panel to `position` of the parent's client area.
    virtual void setPosition(rfb::Point position) = 0;
    /// The panel's outer size.
    virtual rfb::Size getSize() = 0;
    /// The parent's client size; (0, 0) without a parent.
    virtual rfb::Size getParentSize() = 0;
    /// True where the vertical axis runs upward: top and bottom change places.
    virtual bool isFlipped() = 0;
  };

  /// A shown panel against `edge`; `callback` may be null.
  AutoHider(std::int32_t edge, std::int32_t revealSize, Callback* callback) noexcept;

  /// Slides toward shown (`revealed`) or hidden over `milliseconds`, the
  /// default duration when negative; 0 jumps. Cancels a delayed hide.
  void slide(bool revealed, int milliseconds = -1);
  /// Jumps into view, then slides away at the default speed after `milliseconds`.
  void showThenHide(int milliseconds);
  /// Places the panel for the current position, centred along its edge.
  void applyPosition();
  /// The distance of a full slide in pixels, at least 1.
  std::int32_t travel();

  bool timedOut(plat::Timer* timer) override;

  std::int32_t edge() const noexcept { return edge_; }
  std::int32_t revealSize() const noexcept { return revealSize_; }
  /// 0.0 fully shown, 1.0 hidden.
  double position() const noexcept { return position_; }
  /// The direction: toward shown, or toward hidden.
  bool isRevealed() const noexcept { return revealed_; }
  bool isSliding() const noexcept { return slideTimer_.isActive(); }
  std::int32_t defaultDuration() const noexcept { return defaultDuration_; }
  /// While locked, slide() does nothing.
  bool isLocked() const noexcept { return locked_; }

protected:
  void setWidget(Widget* widget) noexcept { widget_ = widget; }
  Widget* widget() const noexcept { return widget_; }

private:
  void reportState(bool sliding);

  plat::Timer slideTimer_{this};
  plat::Timer hideDelayTimer_{this};
  Widget* widget_ = nullptr;
  Callback* callback_;
  std::int32_t edge_;
  std::int32_t revealSize_;
  double position_ = 0.0;
  plat::Ticks lastTick_ = 0;
  std::int32_t duration_ = 0;
  std::int32_t defaultDuration_ = 300;
  bool revealed_ = true;
  // Nothing in this program sets it; it stays for those who embed the panel.
  bool locked_ = false;
};

} // namespace ui
