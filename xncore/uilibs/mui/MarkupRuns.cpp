#include "mui/MarkupRuns.h"

#include <climits>

namespace mui {

namespace {

// Collects what the layout places, measuring through the binding's metrics.
class RunCollector : public plat::Markup::Layout::Callback {
public:
  RunCollector(plat::Markup::Layout::Callback& metrics, int width)
      : metrics_(metrics), width_(width > 0 ? width : INT_MAX) {}

  MarkupRuns result;

  void beginParagraph(std::int32_t alignment) override {
    alignment_ = alignment;
    paragraphStart_ = result.runs.size();
    metrics_.beginParagraph(alignment);
  }
  void endParagraph(std::int32_t leftMargin, std::int32_t rightMargin) override {
    alignParagraph(leftMargin, rightMargin);
    metrics_.endParagraph(leftMargin, rightMargin);
  }
  void setStyle(const plat::Markup::Style& style, const char* href, const char* text) override {
    style_ = style;
    metrics_.setStyle(style, href, text);
  }
  std::int32_t lineHeight() override { return metrics_.lineHeight(); }
  std::int32_t paragraphGap() override { return metrics_.paragraphGap(); }
  std::int32_t measure(const char* begin, const char* end) override {
    return metrics_.measure(begin, end);
  }
  void drawText(const char* begin, const char* end, const plat::Markup::Layout::Rect& rect,
                std::int32_t lineIndex) override {
    place(nullptr, begin, end, rect, lineIndex);
  }
  void drawLink(const char* href, const char* begin, const char* end,
                const plat::Markup::Layout::Rect& rect, std::int32_t lineIndex) override {
    place(href, begin, end, rect, lineIndex);
    result.hasLinks = true;
  }
  void end() override {
    for (const MarkupRun& run : result.runs) {
      if (run.line + 1 == static_cast<int>(result.lines.size())) {
        Rect& line = result.lines.back();
        line.br = {std::max(line.br.x, run.rect.br.x), std::max(line.br.y, run.rect.br.y)};
      } else {
        result.lines.push_back(run.rect);
      }
    }
    metrics_.end();
  }

private:
  void place(const char* href, const char* begin, const char* end,
             const plat::Markup::Layout::Rect& rect, std::int32_t lineIndex) {
    MarkupRun run;
    run.text.assign(begin, end);
    run.href = plat::String(href);
    run.style = style_;
    run.rect = Rect(rect.left, rect.top, rect.right, rect.bottom);
    run.line = lineIndex;
    result.runs.push_back(std::move(run));
  }

  // Each line of the paragraph (the runs that share a top) goes where its
  // alignment puts it. The layout starts a line at the left margin already;
  // the line is taken back to 0 first, so that the margin counts once.
  void alignParagraph(int leftMargin, int rightMargin) {
    std::size_t first = paragraphStart_;
    while (first < result.runs.size()) {
      std::size_t last = first;
      long long width = 0;
      while (last < result.runs.size() &&
             result.runs[last].rect.tl.y == result.runs[first].rect.tl.y)
        width += result.runs[last++].rect.width();
      long long shift = leftMargin;
      if (alignment_ == plat::Markup::alignCenter)
        shift =
            (width_ - (static_cast<long long>(leftMargin) + rightMargin) - width) / 2 + leftMargin;
      else if (alignment_ == plat::Markup::alignRight)
        shift = width_ - width - rightMargin;
      shift -= result.runs[first].rect.tl.x;
      for (std::size_t i = first; i < last; ++i)
        result.runs[i].rect = result.runs[i].rect.translate({static_cast<int>(shift), 0});
      first = last;
    }
  }

  plat::Markup::Layout::Callback& metrics_;
  long long width_;
  std::int32_t alignment_ = plat::Markup::alignLeft;
  std::size_t paragraphStart_ = 0;
  plat::Markup::Style style_;
};

} // namespace

int MarkupRuns::runAt(Point point) const {
  for (std::size_t i = 0; i < runs.size(); ++i) {
    if (runs[i].rect.contains(point))
      return static_cast<int>(i);
  }
  return -1;
}

MarkupRuns layOutMarkup(const char* markup, int width, plat::Markup::Layout::Callback& metrics) {
  RunCollector collector(metrics, width);
  plat::Markup::Layout layout(&collector, width);
  if (markup)
    plat::Markup::parser().parse(markup, &layout);
  const plat::Markup::Layout::Size size = layout.size();
  collector.result.extent = {size.width, size.height};
  return std::move(collector.result);
}

} // namespace mui
