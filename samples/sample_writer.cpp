// Build tool: writes a model file from its JSON description with the project's own writer and,
// when asked, a C++ source that embeds the file's bytes.
//
//   tnw_sample_writer INPUT.json OUTPUT [EMBED.cpp]

#include "model/model_file_writer.h"
#include "model_json/model_json.h"

// Std
#include <cstdio>
#include <fstream>
#include <iostream>

namespace {

bool writeEmbedding(const std::vector<std::uint8_t>& bytes, const std::string& path) {
  std::ofstream out(path);
  out << "// Generated at build time by tnw_sample_writer; do not edit.\n"
      << "#include \"builtin_sample.h\"\n\n"
      << "namespace tnw {\nnamespace {\n\nconstexpr std::uint8_t kBytes[] = {";
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i % 16 == 0) out << "\n   ";
    out << ' ' << static_cast<unsigned>(bytes[i]) << ',';
  }
  out << "\n};\n\n}  // namespace\n\n"
      << "std::span<const std::uint8_t> builtInSampleModel() { return kBytes; }\n\n"
      << "}  // namespace tnw\n";
  out.close();
  return !out.fail();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3 && argc != 4) {
    std::fputs("usage: tnw_sample_writer INPUT.json OUTPUT [EMBED.cpp]\n", stderr);
    return 1;
  }
  tnw::AttributeModel model;
  try {
    std::ifstream in(argv[1]);
    if (!in) throw std::runtime_error("cannot open the file");
    model = tnw::modelFromJson(nlohmann::json::parse(in));
  } catch (const std::exception& e) {
    std::fprintf(stderr, "tnw_sample_writer: %s: %s\n", argv[1], e.what());
    return 1;
  }
  const tnw::ModelFileImage image = tnw::ModelFileWriter::write(model);
  std::ofstream out(argv[2], std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(image.bytes.data()),
            static_cast<std::streamsize>(image.bytes.size()));
  out.close();
  if (out.fail() || (argc == 4 && !writeEmbedding(image.bytes, argv[3]))) {
    std::fprintf(stderr, "tnw_sample_writer: cannot write the output\n");
    return 1;
  }
  return 0;
}
