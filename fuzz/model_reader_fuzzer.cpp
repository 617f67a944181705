// Feeds arbitrary bytes to the model file reader and everything that consumes what it read.
// Besides the sanitizers, it checks that the report is consistent and that writing what was read
// and reading it again gives the same file.

#include "common/core/number_format.h"
#include "model/model_file_reader.h"
#include "model/model_file_writer.h"
#include "model/value_function.h"

// Std
#include <cstdint>
#include <cstdlib>

namespace {

void check(bool ok) {
  if (!ok) std::abort();
}

void useModel(const tnw::AttributeModel& model) {
  for (int a = -1; a <= tnw::kMaxAttributes; ++a) {
    const int slot = a < 0 || a >= tnw::kMaxAttributes ? 0 : a;
    const auto i = static_cast<std::size_t>(slot);
    for (double score : {model.AttScoreLow[i], model.AttScoreHigh[i]}) {
      const tnw::AttValueResult r = tnw::SingleAttValue(model, a, score);
      check(r.value.has_value() == (r.failure == tnw::ValueFailure::None));
      if (r.value) check(r.value->ticks() >= 0 && r.value->ticks() <= 10000);
      if (!r.value) check(!tnw::valueFailureMessage(model, a, r.failure).empty());
    }
    tnw::formatNumber(model.AttScoreLow[i], "###,##0.0#");
    tnw::formatNumber(model.PrevWeight[i], "0.0000");
    tnw::leadingNumber(model.AttOrientation[i]);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tnw::AttributeModel model;
  const tnw::ModelReadReport report = tnw::ModelFileReader::read({data, size}, model);
  check(report.opened);
  check(report.complete == (report.problem == tnw::ModelReadProblem::None));
  check(report.offset <= size);
  check(report.block >= 1 && report.block <= 8);
  check(model.attributeCount() >= 0 && model.attributeCount() <= tnw::kMaxAttributes);
  useModel(model);

  const tnw::ModelFileImage written = tnw::ModelFileWriter::write(model);
  tnw::AttributeModel again;
  check(tnw::ModelFileReader::read(written.bytes, again).complete);
  check(tnw::ModelFileWriter::write(again).bytes == written.bytes);
  return 0;
}
