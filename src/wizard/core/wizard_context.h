#pragma once

#include "model/attribute_model.h"

// Std
#include <cstdint>
#include <string>

namespace tnw {

// What one wizard's dialogs share: what the host passed and the model read from its file. Each
// component object owns one and hands it to its dialogs by reference; the component writes it,
// the dialogs only read it. Each method keeps its own result and hands it on with its export.
struct WizardContext {
  // What the host passed to GetCurFileData.
  std::string NorixDir;
  std::int16_t FileIndex = 0;
  std::string PathAndFileName;

  // The attribute model read from the host's model file.
  AttributeModel model;
};

}  // namespace tnw
