#include "tradeoffs/core/regression_work.h"

// Std
#include <array>
#include <cstdint>
#include <cstring>

namespace tnw::tradeoffs {

void RegressionWork::listNonZeros() {
  const auto rows = static_cast<std::size_t>(N < 0 ? 0 : N) + 2;
  if (NonZeroStart.size() == rows) return;
  NonZeroStart.assign(rows, 0);
  NonZeroAtt.clear();
  NonZeroDiff.clear();
  const int k = K;
  // X as dimension() makes it; otherwise no row has a difference to list.
  if (X.rows() < N + 1 || X.cols() != k + 1) return;
  for (int obs = 1; obs <= N; ++obs) {
    const auto next = static_cast<std::size_t>(obs) + 1;
    const double* x = X.row(obs);
    const auto take = [&](int j) {
      if (x[j] != 0.0) {
        NonZeroAtt.push_back(j);
        NonZeroDiff.push_back(x[j]);
      }
    };
    // A judgment has two non-zero differences among K, so blocks of four +0.0 (all bits clear)
    // are passed over whole; the others are tested one by one.
    int j = 1;
    for (; j + 3 <= k; j += 4) {
      std::array<std::uint64_t, 4> bits{};
      std::memcpy(bits.data(), x + j, sizeof bits);
      if ((bits[0] | bits[1] | bits[2] | bits[3]) == 0) continue;
      for (int t = j; t < j + 4; ++t) take(t);
    }
    for (; j <= k; ++j) take(j);
    NonZeroStart[next] = static_cast<int>(NonZeroAtt.size());
  }
}

}  // namespace tnw::tradeoffs
