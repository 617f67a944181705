#pragma once

#include "common/core/ui_services.h"
#include "model/attribute_model.h"
#include "model/model_read_report.h"

// Std
#include <cstdint>
#include <memory>
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
  // The largest text: a 2-byte length and 65,535 characters.
  static constexpr std::size_t kMaxTextBytes = 2 + 65535;
  // The largest Variant: a 2-byte type code and a text.
  static constexpr std::size_t kMaxVariantBytes = 2 + kMaxTextBytes;
  // The texts of a file: 6 in block 1, those of block 3, 3 per attribute in block 4 and 2 in
  // block 8.
  static constexpr std::size_t kTexts = 6 + kBlock3Strings + 3 * kMaxAttributes + 2;
  // The Variants: those of block 5, two per point in block 7 and 3 in block 8.
  static constexpr std::size_t kVariants = kBlock5Variants + 2 * kMaxPoints * kMaxAttributes + 3;
  // The fixed-size bytes: 8 in block 1, block 2, 62 in block 4, block 6, 2,420 in block 7 and
  // three weight tables in block 8.
  static constexpr std::size_t kFixedBytes =
      8 + kBlock2Size + 2 * kMaxAttributes + kBlock6Size + 2420 + 3 * 8 * kMaxAttributes;
  // The most a model file can hold, 161,831,297 bytes: every text and every Variant at its
  // largest. The reader never goes past it, so nothing after it is read from a file.
  static constexpr std::size_t kMaxModelFileBytes =
      kTexts * kMaxTextBytes + kVariants * kMaxVariantBytes + kFixedBytes;

  // Reads a whole model file image into model. Every block is cleared before it is read, so a
  // short or damaged image leaves the blocks after the one where reading stopped empty.
  static ModelReadReport read(std::span<const std::uint8_t> bytes, AttributeModel& model);
};

// The bytes of a model file as OpenRelatedFileForTNW takes them.
struct ModelFileBytes {
  // Whether the path names a regular file that could be opened.
  bool opened = false;
  // Whether reading failed part-way (the bytes read before are kept).
  bool readError = false;
  // The buffer, sized from the file and not cleared before the read fills it.
  std::unique_ptr<std::uint8_t[]> data;
  // How many bytes were read into it: the file's first kMaxModelFileBytes at most.
  std::size_t size = 0;
  // The bytes read.
  std::span<const std::uint8_t> bytes() const { return {data.get(), size}; }
};

// Reads the file at PathAndFileName (UTF-8) once, into a buffer sized from the file: at most
// kMaxModelFileBytes. Only a regular file is read; a directory, a device or a pipe is refused
// before anything is read from it, so a pipe with no writer cannot block. busyUi, when given,
// shows the busy pointer once the file is open, before it is read.
ModelFileBytes readModelFileBytes(const std::string& PathAndFileName, UiServices* busyUi = nullptr);

// Reads the model file at PathAndFileName (UTF-8) into model, with the busy pointer showing, as
// readModelFileBytes reads it. A path that is not a regular file, or a file that cannot be
// opened, beeps, shows "There are problems in accessing the relevant data." (information icon,
// title "NORIX") and leaves model as it was.
ModelReadReport OpenRelatedFileForTNW(const std::string& PathAndFileName, AttributeModel& model,
                                      UiServices& ui);

}  // namespace tnw
