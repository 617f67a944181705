#pragma once

// Google Benchmark
#include <benchmark/benchmark.h>

// Std
#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tnw::bench {

// The console output as usual, and every repetition's CPU time per iteration kept by benchmark
// name, so that the ratios of the medians can be printed when the run is over.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  // Keeps the single runs (not the aggregates) and prints them as the console does.
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      m_times[run.run_name.function_name + nameArgs(run)].push_back(run.GetAdjustedCPUTime());
    }
    ConsoleReporter::ReportRuns(runs);
  }

  // The median CPU time of a benchmark in nanoseconds, 0 when it did not run.
  double median(const std::string& name) const { return stat(name).first; }

  // (median, (max - min) / median) of a benchmark's repetitions.
  std::pair<double, double> stat(const std::string& name) const {
    const auto it = m_times.find(name);
    if (it == m_times.end() || it->second.empty()) return {0.0, 0.0};
    std::vector<double> t = it->second;
    std::sort(t.begin(), t.end());
    const std::size_t n = t.size();
    const double med = n % 2 == 1 ? t[n / 2] : (t[n / 2 - 1] + t[n / 2]) / 2.0;
    return {med, med > 0.0 ? (t.back() - t.front()) / med : 0.0};
  }

  // Prints one line: ours against a peer, the medians, their spread and the ratio.
  void printRatio(const char* what, const std::string& ours, const std::string& peer) const {
    const auto [a, sa] = stat(ours);
    const auto [b, sb] = stat(peer);
    if (a <= 0.0 || b <= 0.0) return;
    std::printf("%-34s %11.3f us ±%3.0f%% %11.3f us ±%3.0f%%   %6.2f\n", what, a / 1000.0,
                50.0 * sa, b / 1000.0, 50.0 * sb, a / b);
  }

 private:
  static std::string nameArgs(const Run& run) {
    return run.run_name.args.empty() ? std::string() : "/" + run.run_name.args;
  }

  std::map<std::string, std::vector<double>> m_times;
};

}  // namespace tnw::bench
