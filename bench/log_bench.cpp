// The cost of one formatted log line written to a file destination, beside a
// plain fprintf of a line of the same length to the same kind of file. The
// destination also takes its lock, reads the clock, formats the timestamp and
// flushes every line, so the fprintf with fflush is shown too. After the run
// the ratios are printed.
#include "RatioReporter.h"

#include "plat/LogConfig.h"
#include "plat/LogDestFile.h"
#include "plat/LogSrc.h"

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

// A directory of its own, removed at the end of the run.
struct Scratch {
  Scratch() {
    char pattern[] = "/tmp/xn_log_bench_XXXXXX";
    dir = mkdtemp(pattern);
  }
  // Each run of a benchmark opens the file anew, which keeps the earlier one rotated aside.
  ~Scratch() { std::filesystem::remove_all(dir); }
  std::string dir;
};

Scratch& scratch() {
  static Scratch shared;
  return shared;
}

plat::LogSrc benchLog("Bench");

void logMessage(int i) {
  benchLog.info("request %d served in %d ms for %s", i, 42, "client.example");
}

// The length of the line the destination writes for logMessage, line feed
// included; measured before the benchmarks run.
std::size_t lineLength = 0;

std::size_t measureLineLength() {
  std::string path = scratch().dir + "/measure.log";
  {
    plat::LogDestFile dest(nullptr, "bench", nullptr);
    dest.setPath(path.c_str());
    plat::attachLogDest("Bench", &dest, plat::LogSrc::levelInfo);
    logMessage(1000000);
  }
  std::string line;
  std::getline(std::ifstream(path), line);
  return line.size() + 1;
}

void logLineToFileDestination(benchmark::State& state) {
  plat::LogDestFile dest(nullptr, "bench", nullptr);
  dest.setPath((scratch().dir + "/dest.log").c_str());
  plat::attachLogDest("Bench", &dest, plat::LogSrc::levelInfo);
  int i = 1000000;
  for (auto _ : state)
    logMessage(i++ % 9000000 + 1000000);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(lineLength));
}
BENCHMARK(logLineToFileDestination);

void fprintfLine(benchmark::State& state, bool flush) {
  std::string line(lineLength - 1, 'x');
  std::FILE* file =
      std::fopen((scratch().dir + (flush ? "/flushed.log" : "/plain.log")).c_str(), "w");
  for (auto _ : state) {
    std::fprintf(file, "%s\n", line.c_str());
    if (flush)
      std::fflush(file);
  }
  std::fclose(file);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(line.size() + 1));
}
void fprintfSameLengthLine(benchmark::State& state) {
  fprintfLine(state, false);
}
BENCHMARK(fprintfSameLengthLine);
void fprintfAndFflushSameLengthLine(benchmark::State& state) {
  fprintfLine(state, true);
}
BENCHMARK(fprintfAndFflushSameLengthLine);

} // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  lineLength = measureLineLength();
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  auto& ns = reporter.nanoseconds;
  const char* log = "logLineToFileDestination";
  if (ns.count(log) && ns.count("fprintfSameLengthLine") &&
      ns.count("fprintfAndFflushSameLengthLine"))
    std::printf("\nline of %zu bytes: log destination / fprintf = %.1f, "
                "log destination / fprintf+fflush = %.2f\n",
                lineLength, ns[log] / ns["fprintfSameLengthLine"],
                ns[log] / ns["fprintfAndFflushSameLengthLine"]);
  return 0;
}
