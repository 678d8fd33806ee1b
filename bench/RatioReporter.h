// A console reporter that also keeps each benchmark's time per iteration, so
// that a program with its own main can print ratios after the run.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

class RatioReporter : public benchmark::ConsoleReporter {
public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration && run.iterations > 0)
        nanoseconds[run.benchmark_name()] = run.GetAdjustedRealTime(); // all run in ns
      if (run.run_type == Run::RT_Iteration && run.iterations > 0)
        cpuNanoseconds[run.benchmark_name()] = run.GetAdjustedCPUTime();
    }
    ConsoleReporter::ReportRuns(runs);
  }

  /// a / b in real time when both ran, else 0.
  double ratio(const std::string& a, const std::string& b) const {
    return ratioIn(nanoseconds, a, b);
  }
  /// a / b in CPU time when both ran, else 0.
  double cpuRatio(const std::string& a, const std::string& b) const {
    return ratioIn(cpuNanoseconds, a, b);
  }

  std::map<std::string, double> nanoseconds;
  std::map<std::string, double> cpuNanoseconds;

private:
  static double ratioIn(const std::map<std::string, double>& times, const std::string& a,
                        const std::string& b) {
    const auto x = times.find(a), y = times.find(b);
    return x != times.end() && y != times.end() ? x->second / y->second : 0;
  }
};
