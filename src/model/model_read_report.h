#pragma once

// Std
#include <cstddef>

namespace tnw {

// Why reading the model file stopped before its end.
enum class ModelReadProblem {
  None,                // all eight blocks were read
  CannotOpen,          // the file could not be opened; nothing was read
  Truncated,           // the file ended inside a block
  UnknownVariantType,  // a Variant carried a type code whose size is unknown
  ReadError,           // the system could not deliver the file's bytes
};

// How far a read of the model file got. A partial read is not an error to show: the model keeps
// what was read, and the blocks after the one named here stay cleared.
struct ModelReadReport {
  // Whether the file could be opened.
  bool opened = false;
  // Whether all eight blocks were read in full.
  bool complete = false;
  // The block (1..8) being read when reading stopped; 8 after a complete read, 0 if not opened.
  int block = 0;
  // The file offset of the field that could not be read, or the end of block 8.
  std::size_t offset = 0;
  // Why reading stopped.
  ModelReadProblem problem = ModelReadProblem::None;
};

}  // namespace tnw
