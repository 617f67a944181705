// SingleAttValue over 11-point value functions, scores spread over and beyond the range.

#include "model/value_function.h"

// Std
#include <vector>

// Google Benchmark
#include <benchmark/benchmark.h>

namespace {

tnw::AttributeModel elevenPointModel(bool falling) {
  tnw::AttributeModel m;
  m.NumAtt = 1;
  m.NumPoints[0] = tnw::kMaxPoints;
  for (std::size_t k = 0; k < tnw::kMaxPoints; ++k) {
    const std::size_t slot = falling ? tnw::kMaxPoints - 1 - k : k;
    m.PointScore[0][slot] = 10.0 * static_cast<double>(k);
    m.PointValue[0][slot] = static_cast<double>(k * k) / 100.0;
  }
  return m;
}

void BM_SingleAttValue(benchmark::State& state) {
  const tnw::AttributeModel m = elevenPointModel(state.range(0) != 0);
  std::vector<double> scores;
  for (int i = 0; i < 256; ++i) scores.push_back(-10.0 + 120.0 * i / 255.0);
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(tnw::SingleAttValue(m, 0, scores[i]));
    i = (i + 1) % scores.size();
  }
}
BENCHMARK(BM_SingleAttValue)->Arg(0)->Arg(1)->ArgNames({"falling"});

}  // namespace
