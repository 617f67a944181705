#pragma once

#include "model/attribute_model.h"
#include "model_json/json_input.h"

// JSON
#include <nlohmann/json.hpp>

// Std
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tnw {

// A JSON model description that cannot be turned into a model; what() names the field.
class ModelJsonError : public std::runtime_error {
 public:
  // The error of field (e.g. "attributes[0].index") and what it should have held.
  ModelJsonError(const std::string& field, const std::string& what)
      : std::runtime_error(field + ": " + what), m_error{field, what} {}
  // The field and the reason apart.
  const JsonInputError& error() const { return m_error; }

 private:
  JsonInputError m_error;
};

// What a model description may hold: five levels (model, attributes, attribute, points, point),
// at most 31 attributes or weights and 11 points, and three texts of up to 65,535 characters for
// each of the 31 attributes, each character written as an escape of up to six bytes.
inline constexpr JsonLimits kModelJsonLimits{64u << 20, 8, 64, 6u * 65535u, 64};

// The most characters (Windows-1252 bytes) a text of the model file holds.
inline constexpr std::size_t kMaxModelTextBytes = 65535;

// The model as `tnwizard model dump` prints it: readComplete, numAtt, the attributes (as many
// as NumAtt clamped to 0..31, each with NumPoints clamped to 0..11 points, texts raw) and the
// previous result with all 31 weights. Empty Variants and non-finite numbers are null.
nlohmann::ordered_json modelToJson(const AttributeModel& model, bool readComplete);

// The model described by json in the same shape. Missing fields give empty texts, zeros and
// empty Variants; an attribute's "index" defaults to its place in the list. Counts may lie
// outside their usual ranges, so that damaged models can be described. Throws ModelJsonError.
AttributeModel modelFromJson(const nlohmann::json& json);

// The model described by the JSON text, read within kModelJsonLimits: nothing, or why the text
// cannot be made into a model (its line and column, or the field).
std::optional<JsonInputError> modelFromJsonText(std::string_view text, AttributeModel& model);

}  // namespace tnw
