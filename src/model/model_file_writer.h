#pragma once

#include "model/attribute_model.h"

// Std
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tnw {

// A model file as the writer produced it, with where each block begins.
struct ModelFileImage {
  // The file's bytes.
  std::vector<std::uint8_t> bytes;
  // blockStart[b] is the offset of block b + 1 (b = 0..7); blockStart[8] is the file size.
  std::array<std::size_t, 9> blockStart{};
};

// Writes a model file that the host, and ModelFileReader, can read: the inverse of the reader.
// The parts the wizard reads over are written as empty texts, empty Variants and zero bytes.
// Texts are converted to Windows-1252 and cut to 65,535 bytes; point scores and values are
// written as 8-byte doubles, PrevRefAtt as a 2-byte integer when it is integral and fits.
class ModelFileWriter {
 public:
  // The file image of model.
  static ModelFileImage write(const AttributeModel& model);

  // Writes the file image of model to path; false when the file cannot be written.
  static bool writeFile(const AttributeModel& model, const std::string& path);
};

}  // namespace tnw
