#pragma once

// The times of a dialog benchmark's single actions: wall time and the process's CPU time (on a
// loaded machine the wall time of one action also counts the time other programs ran, its CPU
// time does not), reported as Google Benchmark counters. Under valgrind --tool=callgrind
// --instr-atstart=no only the timed actions are instrumented, so the instruction counts are the
// actions' alone.

// Google Benchmark
#include <benchmark/benchmark.h>

// Valgrind's client requests cost a few instructions when the program runs on its own.
#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#define TNW_CALLGRIND(request) request
#else
#define TNW_CALLGRIND(request)
#endif

// Std
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <vector>

namespace tnw {

// The CPU time the process (all its threads) has used so far, in microseconds.
inline double processCpuMicros() {
  timespec t{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) * 1e6 + static_cast<double>(t.tv_nsec) * 1e-3;
}

class ActionTimes {
 public:
  // Starts timing one action.
  void start() {
    TNW_CALLGRIND(CALLGRIND_START_INSTRUMENTATION);
    m_start = std::chrono::steady_clock::now();
    m_cpuStart = processCpuMicros();
  }
  // Ends the action begun by start().
  void stop() {
    m_cpuMicros.push_back(processCpuMicros() - m_cpuStart);
    m_micros.push_back(
        std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - m_start)
            .count());
    TNW_CALLGRIND(CALLGRIND_STOP_INSTRUMENTATION);
  }
  // Sets the counters p50_us, p90_us and max_us (wall time), cpu_p50_us and cpu_p90_us: the
  // median, 90th percentile and maximum of the actions timed so far.
  void report(benchmark::State& state) {
    if (m_micros.empty()) return;
    std::sort(m_micros.begin(), m_micros.end());
    std::sort(m_cpuMicros.begin(), m_cpuMicros.end());
    const auto at = [](const std::vector<double>& sorted, double q) {
      return sorted[static_cast<std::size_t>(q * static_cast<double>(sorted.size() - 1))];
    };
    state.counters["p50_us"] = at(m_micros, 0.5);
    state.counters["p90_us"] = at(m_micros, 0.9);
    state.counters["max_us"] = m_micros.back();
    state.counters["cpu_p50_us"] = at(m_cpuMicros, 0.5);
    state.counters["cpu_p90_us"] = at(m_cpuMicros, 0.9);
  }

 private:
  std::chrono::steady_clock::time_point m_start;
  double m_cpuStart = 0.0;
  std::vector<double> m_micros;
  std::vector<double> m_cpuMicros;
};

}  // namespace tnw
