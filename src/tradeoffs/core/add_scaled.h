#pragma once

namespace tnw::tradeoffs {

// to[j] += f × from[j] (or -= with `subtract`) for j in [begin, end). Each block of four loads
// before it stores, which lets the compiler keep a block in vector registers; every element is
// still rounded on its own, exactly as one at a time.
template <bool subtract>
inline void addScaled(double* to, const double* from, double f, int begin, int end) {
  const auto step = [f](double t, double x) { return subtract ? t - f * x : t + f * x; };
  int j = begin;
  for (; j + 4 <= end; j += 4) {
    const double x0 = from[j], x1 = from[j + 1], x2 = from[j + 2], x3 = from[j + 3];
    const double t0 = to[j], t1 = to[j + 1], t2 = to[j + 2], t3 = to[j + 3];
    to[j] = step(t0, x0);
    to[j + 1] = step(t1, x1);
    to[j + 2] = step(t2, x2);
    to[j + 3] = step(t3, x3);
  }
  for (; j < end; ++j) to[j] = step(to[j], from[j]);
}

}  // namespace tnw::tradeoffs
