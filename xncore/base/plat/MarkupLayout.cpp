#include "plat/MarkupLayout.h"

#include "plat/StringUtils.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace plat {

namespace {

constexpr std::int32_t maxInt = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t minInt = std::numeric_limits<std::int32_t>::min();

// Positions stay within 32 bits whatever sizes and margins a text asks for.
std::int32_t clamp32(std::int64_t value) {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, minInt, maxInt));
}

std::int32_t add32(std::int32_t a, std::int32_t b) {
  return clamp32(static_cast<std::int64_t>(a) + b);
}

// A margin of `padding` line heights, truncated; a padding that is no number is none.
std::int32_t margin(std::int32_t lineHeight, float padding) {
  float pixels = std::trunc(static_cast<float>(lineHeight) * padding);
  if (std::isnan(pixels))
    return 0;
  return pixels >= static_cast<float>(maxInt)   ? maxInt
         : pixels <= static_cast<float>(minInt) ? minInt
                                                : static_cast<std::int32_t>(pixels);
}

bool isLeadByte(char ch) {
  return (static_cast<unsigned char>(ch) & 0xC0) != 0x80;
}

// Where a line may break: at whitespace, or (for a word wider than the line)
// at any character. `high` is where the search stopped, and `fits` tells
// whether the text up to it was measured to fit.
struct LineBreaks {
  const char* (*backward)(const char* probe, const char* low);
  const char* (*forward)(const char* probe, const char* limit);
  const char* (*pieceEnd)(const char* begin, const char* high, bool fits);
};

const LineBreaks wordBreaks = {
    [](const char* probe, const char* low) {
      while (probe > low && !isWhitespace(*probe))
        --probe;
      return probe;
    },
    [](const char* probe, const char* limit) {
      while (probe < limit && !isWhitespace(*probe))
        ++probe;
      return probe;
    },
    // Back over the whitespace before `high`. The search only stops after a
    // whitespace it measured to fit, so what lies before it fits.
    [](const char* begin, const char* high, bool) {
      while (high > begin && isWhitespace(high[-1]))
        --high;
      return high;
    },
};

const LineBreaks characterBreaks = {
    [](const char* probe, const char* low) {
      while (probe > low && !isLeadByte(*probe))
        --probe;
      return probe;
    },
    [](const char* probe, const char* limit) {
      while (probe < limit && !isLeadByte(*probe))
        ++probe;
      return probe;
    },
    // The character before an unmeasured `high` was never seen to fit.
    [](const char* begin, const char* high, bool fits) {
      if (fits || high == begin)
        return high;
      --high;
      while (high > begin && !isLeadByte(*high))
        --high;
      return high;
    },
};

const char* lineFeedOrEnd(const char* text, const char* textEnd) {
  const void* found = std::memchr(text, '\n', static_cast<std::size_t>(textEnd - text));
  return found ? static_cast<const char*>(found) : textEnd;
}

// Past the whitespace at a break, and past one line feed after it, so that a
// wrap just before a line feed does not make an empty line of its own.
const char* skipBreak(const char* text, const char* textEnd) {
  while (text < textEnd && *text != '\n' && isWhitespace(*text))
    ++text;
  return text < textEnd && *text == '\n' ? text + 1 : text;
}

} // namespace

// The search for the longest piece from `begin` that fits into `space`. It
// narrows a range of candidate breaks [low, low + count) by probing where the
// learned pixels per byte say the space ends.
class Markup::Layout::Fitter {
public:
  Fitter(Layout& layout, std::int32_t space) : layout_(layout), space_(space) {}

  /// True with `end` moved to the end of the piece and `measured` its width;
  /// false when not even one break fits.
  bool fit(const char* begin, const char*& end, std::int32_t& measured, const LineBreaks& breaks);

private:
  std::int32_t measure(const char* begin, const char* end) {
    return end == begin ? 0 : layout_.callback_->measure(begin, end);
  }

  Layout& layout_;
  std::int32_t space_;
};

bool Markup::Layout::Fitter::fit(const char* begin, const char*& end, std::int32_t& measured,
                                 const LineBreaks& breaks) {
  if (begin == end) {
    measured = 0;
    return true;
  }
  double& charWidth = layout_.charWidth_;
  const char* low = begin;
  std::ptrdiff_t count = end - begin;
  const char* high;
  std::int32_t width;
  bool fits;
  for (;;) {
    double estimate = std::clamp(space_ / charWidth, 0.0, static_cast<double>(maxInt));
    std::ptrdiff_t offset = static_cast<std::ptrdiff_t>(estimate) - (low - begin);
    const char* probe = low + std::clamp<std::ptrdiff_t>(offset, 0, count - 1);
    const char* limit = low + count;
    high = breaks.forward(probe, limit);
    const char* start = breaks.backward(probe, low);
    width = measure(begin, high);
    if (high != begin && width != 0)
      charWidth = std::max(0.01, static_cast<double>(width) / static_cast<double>(high - begin));
    fits = width <= space_;
    if (fits && high == limit)
      break;
    if (fits) {
      count -= high - low + 1;
      low = high + 1;
    } else {
      count = start - low;
    }
    if (count == 0) {
      // Only a search that ran up to the end has a width left to answer with.
      if (low != high) {
        fits = low == end && (width = measure(begin, end)) <= space_;
        high = low;
      }
      break;
    }
  }
  if (high == end && fits) {
    measured = width;
    return true;
  }
  const char* pieceEnd = breaks.pieceEnd(begin, high, fits);
  if (pieceEnd == begin)
    return false;
  measured = pieceEnd == high && fits ? width : measure(begin, pieceEnd);
  end = pieceEnd;
  return true;
}

void Markup::Layout::Callback::beginParagraph(std::int32_t) {}

void Markup::Layout::Callback::endParagraph(std::int32_t, std::int32_t) {}

std::int32_t Markup::Layout::Callback::paragraphGap() {
  return lineHeight() / 2;
}

void Markup::Layout::Callback::end() {}

Markup::Layout::Layout(Callback* callback, std::int32_t width)
    : callback_(callback), width_(width > 0 ? width : maxInt) {}

void Markup::Layout::beginParagraph(std::int32_t alignment, float paddingLeft, float paddingRight) {
  callback_->beginParagraph(alignment);
  std::int32_t height = callback_->lineHeight();
  leftMargin_ = margin(height, paddingLeft);
  rightMargin_ = margin(height, paddingRight);
  lineWidth_ = clamp32(static_cast<std::int64_t>(width_) - leftMargin_ - rightMargin_);
  x_ = leftMargin_;
  if (paragraphs_ > 0)
    y_ = add32(y_, add32(callback_->paragraphGap(), lineHeight_));
  ++paragraphs_;
  ++lines_;
  lineHeight_ = 0;
}

void Markup::Layout::endParagraph(bool) {
  callback_->endParagraph(leftMargin_, rightMargin_);
}

void Markup::Layout::text(const Style& style, const char* text) {
  callback_->setStyle(style, nullptr, text);
  layoutRun(text ? text : "", nullptr);
}

void Markup::Layout::link(const Style& style, const char* href, const char* text) {
  callback_->setStyle(style, href, text);
  layoutRun(text ? text : href ? href : "", href ? href : "");
}

void Markup::Layout::end() {
  callback_->end();
}

void Markup::Layout::nextLine() {
  y_ = add32(y_, lineHeight_);
  ++lines_;
  x_ = leftMargin_;
  lineHeight_ = 0;
}

// The left margin counts in both lineWidth_ and x_, so a line is narrower than
// its paragraph by that margin. This is intended: texts are written for it.
void Markup::Layout::layoutRun(const char* text, const char* href) {
  const std::int32_t height = callback_->lineHeight();
  const char* const textEnd = text + std::strlen(text);
  const char* piece = text;
  for (;;) {
    const char* lineEnd = lineFeedOrEnd(piece, textEnd);
    const char* pieceEnd = lineEnd;
    std::int32_t measured = 0;
    auto space = [this] { return clamp32(static_cast<std::int64_t>(lineWidth_) - x_); };
    bool placed = Fitter(*this, space()).fit(piece, pieceEnd, measured, wordBreaks);
    if (!placed && x_ != leftMargin_) {
      nextLine();
      piece = skipBreak(piece, textEnd);
      if (piece == textEnd)
        return;
      lineEnd = lineFeedOrEnd(piece, textEnd);
      pieceEnd = lineEnd;
      Fitter fitter(*this, space());
      placed = fitter.fit(piece, pieceEnd, measured, wordBreaks);
      if (!placed)
        placed = fitter.fit(piece, pieceEnd, measured, characterBreaks);
    } else if (!placed) {
      placed = Fitter(*this, space()).fit(piece, pieceEnd, measured, characterBreaks);
    }
    if (!placed)
      return;

    Rect rect{x_, y_, add32(x_, measured), add32(y_, height)};
    if (href)
      callback_->drawLink(href, piece, pieceEnd, rect, lines_ - 1);
    else
      callback_->drawText(piece, pieceEnd, rect, lines_ - 1);
    x_ = rect.right;
    extentX_ = std::max(extentX_, rect.right);
    extentY_ = std::max(extentY_, rect.bottom);
    lineHeight_ = std::max(lineHeight_, height);

    if (pieceEnd == textEnd)
      return;
    // A break at the end of the run leaves the new line open, empty, for the
    // next run: a line feed at the end of a text adds no height.
    nextLine();
    piece = skipBreak(pieceEnd, textEnd);
    if (piece == textEnd)
      return;
  }
}

} // namespace plat
