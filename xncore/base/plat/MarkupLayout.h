// plat::Markup::Layout: breaks the runs of a parsed text into lines and places
// each piece through a Callback, which knows the fonts, measures and draws (a
// text view keeps the pieces and paints them; a measuring pass only reads the
// size). Lines break at whitespace, a word wider than the line at a character
// boundary, and always at a line feed. Pieces arrive positioned from the left
// edge of the line; aligning a finished paragraph is the callback's.
//
// Lines are fitted with few measurements: the layout probes by its estimate of
// pixels per byte, learned from every measurement and carried from one piece
// to the next.
#pragma once

#include "plat/Markup.h"

#include <cstdint>

namespace plat {

class Markup::Layout : public Markup::Handler {
public:
  /// Pixels; right and bottom are excluded.
  struct Rect {
    std::int32_t left;
    std::int32_t top;
    std::int32_t right;
    std::int32_t bottom;
    friend bool operator==(const Rect&, const Rect&) = default;
  };

  struct Size {
    std::int32_t width;
    std::int32_t height;
    friend bool operator==(const Size&, const Size&) = default;
  };

  /// What the layout needs from its surroundings. Text comes as UTF-8 byte
  /// ranges [begin, end) that never split a character.
  class Callback {
  public:
    virtual ~Callback() = default;
    virtual void beginParagraph(std::int32_t alignment);
    /// A paragraph is finished; the callback aligns its lines between the margins.
    virtual void endParagraph(std::int32_t leftMargin, std::int32_t rightMargin);
    /// The style of what follows; for a link also its target, and its text
    /// (null when the link shows its target). `href` is null for plain text.
    virtual void setStyle(const Style& style, const char* href, const char* text) = 0;
    /// The height of a line in the current style.
    virtual std::int32_t lineHeight() = 0;
    /// The space between paragraphs; half a line unless overridden.
    virtual std::int32_t paragraphGap();
    /// The width of the text in the current style.
    virtual std::int32_t measure(const char* begin, const char* end) = 0;
    /// Places a piece of plain text on line `lineIndex` (counted from 0).
    virtual void drawText(const char* begin, const char* end, const Rect& rect,
                          std::int32_t lineIndex) = 0;
    /// Places a piece of a link.
    virtual void drawLink(const char* href, const char* begin, const char* end, const Rect& rect,
                          std::int32_t lineIndex) = 0;
    /// The whole text has been laid out.
    virtual void end();
  };

  /// `width` 0 or less means no wrapping. The layout runs when the object is
  /// the handler of a parse; `callback` must outlive it.
  Layout(Callback* callback, std::int32_t width);

  /// The largest right and bottom edges placed: the size of the laid-out text.
  Size size() const noexcept { return {extentX_, extentY_}; }

  void beginParagraph(std::int32_t alignment, float paddingLeft, float paddingRight) override;
  void endParagraph(bool isLast) override;
  void text(const Style& style, const char* text) override;
  void link(const Style& style, const char* href, const char* text) override;
  void end() override;

private:
  class Fitter;

  void layoutRun(const char* text, const char* href);
  void nextLine();

  Callback* callback_;
  std::int32_t x_ = 0;
  std::int32_t y_ = 0;
  std::int32_t extentX_ = 0;
  std::int32_t extentY_ = 0;
  std::int32_t leftMargin_ = 0;
  std::int32_t rightMargin_ = 0;
  std::int32_t lineWidth_ = 0;
  std::int32_t width_;
  std::int32_t paragraphs_ = 0;
  std::int32_t lines_ = 0;
  std::int32_t lineHeight_ = 0;
  double charWidth_ = 3.0;
};

} // namespace plat
