// Reading a full model file: 31 attributes with 11-point value functions.

#include "common/core/recording_ui_services.h"
#include "model/model_file_reader.h"
#include "model/model_file_writer.h"

// Std
#include <cstdio>
#include <filesystem>

// Google Benchmark
#include <benchmark/benchmark.h>

namespace {

tnw::AttributeModel fullModel() {
  tnw::AttributeModel m;
  m.NumAtt = tnw::kMaxAttributes;
  for (std::size_t a = 0; a < tnw::kMaxAttributes; ++a) {
    m.AttName[a] = "Attribute " + std::to_string(a + 1);
    m.AttDefinition[a] =
        "What attribute " + std::to_string(a + 1) + " measures, and in which unit.";
    m.AttOrientation[a] = a % 2 == 0 ? "0" : "1";
    m.AttScoreLow[a] = 0.0;
    m.AttScoreHigh[a] = 100.0;
    m.NumPoints[a] = tnw::kMaxPoints;
    for (std::size_t k = 0; k < tnw::kMaxPoints; ++k) {
      m.PointScore[a][k] = 10.0 * static_cast<double>(k);
      m.PointValue[a][k] = static_cast<double>(k * k) / 100.0;
    }
    m.PrevWeight[a] = 1.0 / 31.0;
    m.PrevWeightH[a] = 1.5 / 31.0;
    m.PrevWeightL[a] = 0.5 / 31.0;
  }
  m.PrevTNType = "MAVT_DIRECT";
  m.PrevRefAtt = 3.0;
  return m;
}

void BM_ReadFullModelFromMemory(benchmark::State& state) {
  const tnw::ModelFileImage image = tnw::ModelFileWriter::write(fullModel());
  tnw::AttributeModel model;
  for (auto _ : state) {
    benchmark::DoNotOptimize(tnw::ModelFileReader::read(image.bytes, model));
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(image.bytes.size()));
}
BENCHMARK(BM_ReadFullModelFromMemory);

void BM_OpenRelatedFileForTNW(benchmark::State& state) {
  const std::string path =
      (std::filesystem::temp_directory_path() / "tnw-bench-full-model.nrx").string();
  tnw::ModelFileWriter::writeFile(fullModel(), path);
  tnw::RecordingUiServices ui;
  tnw::AttributeModel model;
  for (auto _ : state) {
    benchmark::DoNotOptimize(tnw::OpenRelatedFileForTNW(path, model, ui));
  }
  std::remove(path.c_str());
}
BENCHMARK(BM_OpenRelatedFileForTNW);

}  // namespace
