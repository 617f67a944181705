#pragma once

#include "model/attribute_model.h"

// Std
#include <cstdint>
#include <string>
#include <vector>

namespace tnw {

// The data one wizard keeps for all of its dialogs: what the host passed, the model read from
// its file, and the results the method pages write for the results pages and the exports.
// Each component object owns one; dialogs get it by reference and never pass data directly.
struct WizardContext {
  // What the host passed to GetCurFileData.
  std::string NorixDir;
  std::int16_t FileIndex = 0;
  std::string PathAndFileName;

  // The attribute model read from the host's model file.
  AttributeModel model;

  // The weight tables written by the judgment pages or the regression, index 0..NumAtt-1.
  std::vector<double> LowerWeights;
  std::vector<double> CloseWeights;
  std::vector<double> UpperWeights;

  // The consistency text of the regression.
  std::string RegressionComment;
};

}  // namespace tnw
