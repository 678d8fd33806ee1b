// Parsing and laying out marked-up text as it grows: paragraphs of the kinds
// the program writes (plain, styled, with links, lists and line breaks),
// repeated to 1 KB, 100 KB and 1 MB, laid out 400 pixels wide with the
// headless text model. Both steps are linear, so the time per KB should stay
// flat across the sizes.
#include "mui/headless/MarkupMetricsHeadless.h"
#include "plat/MarkupLayout.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using plat::Markup;

const char* const paragraphs[] = {
    "<div>Copyright &#169; Ostrand. All rights reserved. Parts of this software are protected "
    "by patents or pending patent applications.</div>",
    "<div style=\"text-align:center;padding-left:1\">Licences and acknowledgements of "
    "third-party software: <a href=\"https://www.ostrand.example/docs/7/foss.html\">"
    "https://www.ostrand.example/docs/7/foss.html</a></div>",
    "<div><b>Allow</b> lets the user <i>use</i> the feature; <span style=\"color:red;"
    "font-weight:700\">Deny</span> takes it away, even when a group allows it.<br/>Entries:"
    "<ul><li>users</li><li>groups &amp; identity groups</li></ul></div>",
    "<div style=\"text-align:justify\">Verylongwordsthatdonotfitonanylineatallarebrokenbetween"
    "theircharacters, and the rest of the text flows on after them as usual.</div>",
};

std::string markupOf(std::size_t bytes) {
  std::string text;
  for (std::size_t i = 0; text.size() < bytes; ++i)
    text += paragraphs[i % std::size(paragraphs)];
  return text;
}

// Measures, and keeps nothing but a count of the pieces.
class Counter : public mui::MarkupMetricsHeadless {
public:
  void drawText(const char*, const char*, const Markup::Layout::Rect&, std::int32_t) override {
    ++pieces_;
  }
  void drawLink(const char*, const char*, const char*, const Markup::Layout::Rect&,
                std::int32_t) override {
    ++pieces_;
  }
  long pieces_ = 0;
};

void parseAndLayOut(benchmark::State& state) {
  const std::string text = markupOf(static_cast<std::size_t>(state.range(0)) * 1024);
  for (auto _ : state) {
    Counter counter;
    Markup::Layout layout(&counter, 400);
    if (!Markup::parser().parse(text.c_str(), &layout))
      state.SkipWithError("the markup was refused");
    benchmark::DoNotOptimize(layout.size());
  }
  const double kilobytes = static_cast<double>(text.size()) / 1024;
  state.SetComplexityN(static_cast<std::int64_t>(text.size()));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
  state.counters["per_KB"] = benchmark::Counter(
      kilobytes, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(parseAndLayOut)
    ->Arg(1)
    ->Arg(100)
    ->Arg(1024)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

} // namespace
