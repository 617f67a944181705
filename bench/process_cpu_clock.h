#pragma once

// The process's CPU time, for the dialog benchmarks' per-action figures: on a loaded machine the
// wall time of one action also counts the time other programs ran, its CPU time does not.

// Std
#include <ctime>

namespace tnw {

// The CPU time the process (all its threads) has used so far, in microseconds.
inline double processCpuMicros() {
  timespec t{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) * 1e6 + static_cast<double>(t.tv_nsec) * 1e-3;
}

}  // namespace tnw
