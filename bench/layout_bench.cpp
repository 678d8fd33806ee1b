// The layout engine on a form of nested rows and columns with wrapped text, at
// growing sizes and depths of nesting: the time per element must stay flat,
// since a measure of a nested layout is remembered for the rest of its pass.
#include "mui/MuDialog.h"
#include "mui/MuLayout.h"
#include "mui/headless/MuiHeadless.h"
#include "mui/headless/TextLeafHeadless.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace mui;

// Fills `parent` with about `count` elements: two labels that wrap, and two
// nested layouts of the other orientation sharing the rest, one stretching.
int build(MuContainer* parent, int count, int orientation) {
  int made = 0;
  auto* layout = MuLayout::create(parent, "l", orientation);
  ++made;
  TextLeafHeadless::create(layout, "a", "Allow the members of this group to view the desktop");
  TextLeafHeadless* wide = TextLeafHeadless::create(layout, "b", "Deny remote control");
  layout->setChildLayout(wide, MuLayout::Natural | MuLayout::AtStart, 1);
  made += 2;
  const int rest = count - made;
  if (rest >= 6) {
    const int other = orientation == MuLayout::Vertical ? MuLayout::Horizontal : MuLayout::Vertical;
    made += build(layout, rest / 2, other);
    made += build(layout, rest - rest / 2, other);
    layout->setChildLayout(layout->getChild(-1), MuLayout::Weighted, 1);
  }
  return made;
}

void layoutForm(benchmark::State& state) {
  MuiHeadless root;
  installHeadlessBinding(root);
  const Size size{1200, 900};
  std::unique_ptr<MuDialog> dialog(MuDialog::create("form", "Form", &size, 0, nullptr, nullptr));
  const int elements = build(dialog.get(), static_cast<int>(state.range(0)), MuLayout::Vertical);
  int width = 1200;
  for (auto _ : state) {
    // A new width each time, so that nothing is laid out at a size it had.
    width = width == 1200 ? 1100 : 1200;
    dialog->setSize({width, 900});
  }
  state.counters["elements"] = elements;
  state.counters["per_element"] = benchmark::Counter(static_cast<double>(elements),
                                                     benchmark::Counter::kIsIterationInvariantRate |
                                                         benchmark::Counter::kInvert);
}

BENCHMARK(layoutForm)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

} // namespace
