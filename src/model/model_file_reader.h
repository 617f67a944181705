#pragma once

#include "common/ui_services.h"
#include "model/attribute_model.h"
#include "model/model_read_report.h"

// Std
#include <cstdint>
#include <span>
#include <string>

namespace tnw {

// Reads the host's model file: eight blocks of packed little-endian data, one after another.
// Only the parts the wizard uses are kept; the rest is read over. Never throws; nothing a file
// contains can make it read outside the file or write outside the model.
class ModelFileReader {
 public:
  // Sizes in bytes of the fixed parts of the file that are read over.
  static constexpr std::size_t kBlock2Size = 30;
  static constexpr std::size_t kBlock6Size = 12648;
  static constexpr int kBlock3Strings = 2 * 51;
  static constexpr int kBlock5Variants = 51 * 31;
  // More bytes than any model file can hold: 2,469 texts and Variants of at most 65,539 bytes
  // each, and less than 20 KB of fixed-size data.
  static constexpr std::size_t kMaxModelFileBytes = std::size_t{256} << 20;

  // Reads a whole model file image into model. Every block is cleared before it is read, so a
  // short or damaged image leaves the blocks after the one where reading stopped empty.
  static ModelReadReport read(std::span<const std::uint8_t> bytes, AttributeModel& model);
};

// Reads the model file at PathAndFileName (UTF-8) into model, with the busy pointer showing. Only
// the first kMaxModelFileBytes are read. A file that
// cannot be opened beeps, shows "There are problems in accessing the relevant data." (information
// icon, title "NORIX") and leaves model as it was.
ModelReadReport OpenRelatedFileForTNW(const std::string& PathAndFileName, AttributeModel& model,
                                      UiServices& ui);

}  // namespace tnw
