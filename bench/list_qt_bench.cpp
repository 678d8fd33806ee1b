// Filling a list on the Qt binding and selecting its last row, from a
// thousand rows to a hundred thousand: the view reads rows through a model,
// so the time grows with the rows and nothing per row stays in widgets.
#include "mui/MuDialog.h"
#include "mui/MuList.h"
#include "mui/qt/MuiQt.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

void fillAndSelectLast(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  mui::MuiQt root;
  mui::installQtBinding(root);
  const mui::Size size{600, 400};
  char name[32];
  char kind[32];
  for (auto _ : state) {
    std::unique_ptr<mui::MuDialog> dialog(
        mui::MuDialog::create("bench", "List", &size, 0, nullptr, nullptr));
    mui::MuList* list =
        mui::MuList::create(dialog.get(), "list", mui::MuList::ShowHeaders, nullptr);
    list->addColumn(0, mui::MuList::ImageColumn, "", 0);
    list->addColumn(1, mui::MuList::TextColumn, "Name", 0);
    list->addColumn(2, mui::MuList::TextColumn, "Kind", 120);
    dialog->setVisible(true);
    for (int row = 0; row < rows; ++row) {
      std::snprintf(name, sizeof name, "account%07d", row);
      std::snprintf(kind, sizeof kind, row % 3 ? "user" : "group");
      list->addRow(-1, kind, name, kind);
    }
    list->setSelection(rows - 1);
    // Lays out and paints what now shows: the end of the list.
    QApplication::processEvents();
    benchmark::DoNotOptimize(list->getSelection());
  }
  state.SetComplexityN(rows);
  state.counters["per_row"] =
      benchmark::Counter(static_cast<double>(rows), benchmark::Counter::kIsIterationInvariantRate |
                                                        benchmark::Counter::kInvert);
}

BENCHMARK(fillAndSelectLast)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

} // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
