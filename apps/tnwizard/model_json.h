#pragma once

#include "model/attribute_model.h"

// JSON
#include <nlohmann/json.hpp>

// Std
#include <stdexcept>
#include <string>

namespace tnw {

// A JSON model description that cannot be turned into a model; what() names the field.
class ModelJsonError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The model as `tnwizard model dump` prints it: readComplete, numAtt, the attributes (as many
// as NumAtt clamped to 0..31, each with NumPoints clamped to 0..11 points, texts raw) and the
// previous result with all 31 weights. Empty Variants and non-finite numbers are null.
nlohmann::ordered_json modelToJson(const AttributeModel& model, bool readComplete);

// The model described by json in the same shape. Missing fields give empty texts, zeros and
// empty Variants; an attribute's "index" defaults to its place in the list. Counts may lie
// outside their usual ranges, so that damaged models can be described. Throws ModelJsonError.
AttributeModel modelFromJson(const nlohmann::json& json);

}  // namespace tnw
