// Marked-up text as dialogs, the About box and help carry it. The first byte
// picks the width of the layout (0: no wrapping), the rest is the text.
// Invariants: parsing never throws and answers the same with and without a
// handler; every piece the layout places is whole characters, starts at or
// after the left margin, ends within the line, and lies inside the size the
// layout reports, on lines that only go down; and any text, escaped, parses
// back to itself.
#include "FuzzCheck.h"

#include "mui/headless/MarkupMetricsHeadless.h"
#include "plat/MarkupEscape.h"
#include "plat/MarkupLayout.h"
#include "plat/MarkupStripper.h"
#include "plat/utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

using plat::Markup;
using xnfuzz::check;

class Checker : public mui::MarkupMetricsHeadless {
public:
  explicit Checker(std::int32_t width) : width_(width) {}

  void endParagraph(std::int32_t left, std::int32_t right) override {
    std::int64_t lineWidth = static_cast<std::int64_t>(width_) - left - right;
    for (const Markup::Layout::Rect& rect : paragraph_)
      check(rect.left >= left && rect.right <= std::max<std::int64_t>(lineWidth, left));
    paragraph_.clear();
  }
  void drawText(const char* begin, const char* end, const Markup::Layout::Rect& rect,
                std::int32_t line) override {
    place(begin, end, rect, line);
  }
  void drawLink(const char* href, const char* begin, const char* end,
                const Markup::Layout::Rect& rect, std::int32_t line) override {
    check(href != nullptr);
    place(begin, end, rect, line);
  }

  std::vector<Markup::Layout::Rect> placed_;

private:
  void place(const char* begin, const char* end, const Markup::Layout::Rect& rect,
             std::int32_t line) {
    check(begin <= end && plat::isValidUtf8(begin, end));
    check(rect.right - rect.left == measure(begin, end) && rect.bottom - rect.top == lineHeight());
    check(line >= line_ && (placed_.empty() || rect.top >= placed_.back().top));
    line_ = line;
    placed_.push_back(rect);
    if (width_ > 0)
      paragraph_.push_back(rect);
  }

  std::int32_t width_;
  std::int32_t line_ = 0;
  std::vector<Markup::Layout::Rect> paragraph_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0)
    return 0;
  std::int32_t width = data[0] * 2;
  const char* bytes = reinterpret_cast<const char*>(data + 1);
  std::string text(bytes, ::strnlen(bytes, size - 1));

  bool valid = Markup::parser().parse(text.c_str(), nullptr);
  Checker checker(width);
  Markup::Layout layout(&checker, width);
  check(Markup::parser().parse(text.c_str(), &layout) == valid);
  Markup::Layout::Size extent = layout.size();
  for (const Markup::Layout::Rect& rect : checker.placed_)
    check(rect.right <= extent.width && rect.bottom <= extent.height);

  plat::String escaped = plat::escapeMarkup(text.c_str());
  check(std::strcmp(Markup::Stripper(escaped.get()).get(), plat::repairUtf8(text.c_str()).get()) ==
        0);
  return 0;
}
