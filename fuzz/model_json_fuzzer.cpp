// Feeds arbitrary text to the model reader of `tnwizard model make`. Besides the sanitizers it
// checks that a refusal is located, that an accepted model is written whole (reading the file
// back and writing it again gives the same bytes), and that its dump is accepted again.

#include "fuzz_models.h"
#include "model/model_file_reader.h"
#include "model/model_file_writer.h"
#include "model_json/model_json.h"

// Std
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tnw::fuzz::check;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  tnw::AttributeModel model;
  if (const auto error = tnw::modelFromJsonText(text, model)) {
    check(!error->where.empty() && !error->what.empty());
    check(error->text().find("json.exception") == std::string::npos);
    return 0;
  }
  const tnw::ModelFileImage written = tnw::ModelFileWriter::write(model);
  tnw::AttributeModel read;
  const tnw::ModelReadReport report = tnw::ModelFileReader::read(written.bytes, read);
  check(report.complete);
  check(tnw::ModelFileWriter::write(read).bytes == written.bytes);
  const std::string dumped =
      tnw::modelToJson(read, true).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  tnw::AttributeModel again;
  check(!tnw::modelFromJsonText(dumped, again).has_value());
  return 0;
}
