// Our regression, value function and model read side by side with what a user would pick
// instead: GSL's gsl_multifit_linear and an Eigen normal-equations floor, GSL's Akima spline,
// and a plain read() of the file. The outputs are checked to agree before anything is timed;
// the ratios of the medians are printed at the end (run with --benchmark_repetitions and
// --benchmark_enable_random_interleaving=true, as scripts/bench does, to interleave them).

#include "common/core/recording_ui_services.h"
#include "model/model_file_reader.h"
#include "model/model_file_writer.h"
#include "model/value_function.h"
#include "peers_ratio_reporter.h"
#include "peers_setup.h"
#include "tradeoffs/core/regression.h"
#include "tradeoffs/core/tradeoff_weights.h"

// Google Benchmark
#include <benchmark/benchmark.h>

// Std
#include <cstdio>
#include <string>

namespace tnw::bench {
namespace {

constexpr int kSizes[] = {3, 8, 16, 31};

void BM_RegressionOurs(benchmark::State& state) {
  const int k = static_cast<int>(state.range(0));
  tradeoffs::JudgmentStore store = judgmentData(k);
  tradeoffs::TradeOffWeights weights;
  tradeoffs::MultiRegressionData record;
  tradeoffs::Regression reg;
  for (auto _ : state) {
    reg.RegressMain(store, k, record, weights);
    benchmark::DoNotOptimize(record.Coef.data());
  }
}

void BM_RegressionGsl(benchmark::State& state) {
  const int k = static_cast<int>(state.range(0));
  GslFit fit(judgmentData(k), k);
  for (auto _ : state) {
    fit.run();
    benchmark::DoNotOptimize(fit.coefficient(0));
  }
}

void BM_RegressionEigen(benchmark::State& state) {
  const int k = static_cast<int>(state.range(0));
  EigenFit fit(judgmentData(k), k);
  for (auto _ : state) {
    fit.run();
    benchmark::DoNotOptimize(fit.coefficient(0));
  }
}

void BM_AkimaOurs(benchmark::State& state) {
  const AttributeModel m = elevenPointModel();
  const std::vector<double> scores = evaluationScores();
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(SingleAttValue(m, 0, scores[i]));
    i = (i + 1) % scores.size();
  }
}

void BM_AkimaGsl(benchmark::State& state) {
  GslAkima akima(elevenPointModel());
  const std::vector<double> scores = evaluationScores();
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(akima.initAndEval(scores[i]));
    i = (i + 1) % scores.size();
  }
}

void BM_ModelReadOurs(benchmark::State& state) {
  const TempModelFile file;
  RecordingUiServices ui;
  AttributeModel model;
  for (auto _ : state) benchmark::DoNotOptimize(OpenRelatedFileForTNW(file.path(), model, ui));
}

void BM_ModelReadPlain(benchmark::State& state) {
  const TempModelFile file;
  std::vector<std::uint8_t> buffer(std::size_t{1} << 16);
  for (auto _ : state) benchmark::DoNotOptimize(plainRead(file.path(), buffer));
}

void registerAll() {
  for (const int k : kSizes) {
    benchmark::RegisterBenchmark("Regression/ours", BM_RegressionOurs)->Arg(k);
    benchmark::RegisterBenchmark("Regression/gsl", BM_RegressionGsl)->Arg(k);
    benchmark::RegisterBenchmark("Regression/eigen", BM_RegressionEigen)->Arg(k);
  }
  benchmark::RegisterBenchmark("Akima/ours", BM_AkimaOurs);
  benchmark::RegisterBenchmark("Akima/gsl", BM_AkimaGsl);
  benchmark::RegisterBenchmark("ModelRead/ours", BM_ModelReadOurs);
  benchmark::RegisterBenchmark("ModelRead/read", BM_ModelReadPlain);
}

void printRatios(const RatioReporter& r) {
  std::printf("\n%-34s %17s %17s %8s\n", "CPU time, median ± half spread", "ours", "peer", "ratio");
  for (const int k : kSizes) {
    const std::string n = "/" + std::to_string(k);
    const std::string label = "regression K=" + std::to_string(k);
    r.printRatio((label + " vs GSL").c_str(), "Regression/ours" + n, "Regression/gsl" + n);
    r.printRatio((label + " vs Eigen").c_str(), "Regression/ours" + n, "Regression/eigen" + n);
  }
  r.printRatio("SingleAttValue vs GSL Akima", "Akima/ours", "Akima/gsl");
  r.printRatio("model read vs plain read()", "ModelRead/ours", "ModelRead/read");
  const double t16 = r.median("Regression/ours/16");
  const double t31 = r.median("Regression/ours/31");
  if (t16 > 0.0 && t31 > 0.0) {
    std::printf("regression growth K=16 to 31: exponent %.2f\n",
                std::log(t31 / t16) / std::log(31.0 / 16.0));
  }
}

}  // namespace
}  // namespace tnw::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  const bool agree = tnw::bench::checkAgreement();
  tnw::bench::registerAll();
  tnw::bench::RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  tnw::bench::printRatios(reporter);
  benchmark::Shutdown();
  return agree ? 0 : 1;
}
