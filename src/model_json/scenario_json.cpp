#include "model_json/scenario_json.h"

#include "model/attribute_model.h"
#include "model_json/json_fields.h"

// Std
#include <cstdint>
#include <limits>

namespace tnw {
namespace {

using direct::DirectScenario;
using direct::ScenarioStep;
using nlohmann::json;

// The text typed into a box: a string, or a number written as JSON writes it.
std::string boxText(const json& step, const char* key, const std::string& pointer) {
  const auto it = step.find(key);
  if (it == step.end() || it->is_null()) return {};
  if (it->is_number()) {
    finiteNumber(*it, jsonPointer(pointer, key));
    return it->dump();
  }
  return textFrom(*it, jsonPointer(pointer, key));
}

ScenarioStep readStep(const json& step, const std::string& pointer) {
  if (!step.is_object()) throw JsonFieldError(pointer, "expected a step object");
  ScenarioStep s;
  if (const auto it = step.find("restart"); it != step.end()) {
    if (!it->is_boolean())
      throw JsonFieldError(jsonPointer(pointer, "restart"), "expected true or false");
    s.restart = it->get<bool>();
  }
  if (const auto it = step.find("target"); it != step.end() && !it->is_null()) {
    s.target = static_cast<int>(integerFrom(*it, jsonPointer(pointer, "target"),
                                            std::numeric_limits<std::int16_t>::min(),
                                            std::numeric_limits<std::int16_t>::max()));
  }
  s.lower = boxText(step, "lower", pointer);
  s.upper = boxText(step, "upper", pointer);
  return s;
}


std::vector<int> readOrder(const json& value, const std::string& pointer) {
  if (!value.is_array() || value.size() > static_cast<std::size_t>(kMaxAttributes)) {
    throw JsonFieldError(pointer, "expected a list of up to 31 group numbers");
  }
  std::vector<int> order;
  for (std::size_t i = 0; i < value.size(); ++i) {
    order.push_back(
        static_cast<int>(integerFrom(value[i], jsonPointer(pointer, i), 1, kMaxAttributes)));
  }
  return order;
}

void readScenario(const json& j, const std::string& base, DirectScenario& out) {
  if (!j.is_object()) {
    throw JsonFieldError(base.empty() ? "the file" : base,
                         "expected the scenario as a JSON object");
  }
  if (const auto it = j.find("order"); it != j.end()) {
    out.order = readOrder(*it, jsonPointer(base, "order"));
  }
  if (const auto it = j.find("reference"); it != j.end()) {
    out.reference =
        static_cast<int>(integerFrom(*it, jsonPointer(base, "reference"), 0, kMaxAttributes - 1));
  }
  if (const auto it = j.find("steps"); it != j.end()) {
    const std::string pointer = jsonPointer(base, "steps");
    if (!it->is_array()) throw JsonFieldError(pointer, "expected a list of steps");
    for (std::size_t i = 0; i < it->size(); ++i) {
      out.steps.push_back(readStep((*it)[i], jsonPointer(pointer, i)));
    }
  }
  if (const auto it = j.find("end"); it != j.end()) {
    out.end = readScenarioEnd(*it, jsonPointer(base, "end"));
  }
}

}  // namespace

std::optional<JsonInputError> readDirectScenario(const json& value, const std::string& pointer,
                                                 DirectScenario& scenario) {
  scenario = {};
  try {
    readScenario(value, pointer, scenario);
  } catch (const JsonFieldError& e) {
    scenario = {};
    return e.error();
  }
  return std::nullopt;
}

std::optional<JsonInputError> readDirectScenario(std::string_view text, DirectScenario& scenario) {
  scenario = {};
  json j;
  if (auto error = parseJsonText(text, kScenarioJsonLimits, j)) return error;
  return readDirectScenario(j, "", scenario);
}

}  // namespace tnw
