#include "model_json/json_fields.h"

// Std
#include <cmath>

namespace tnw {

std::int64_t integerFrom(const nlohmann::json& v, const std::string& pointer, std::int64_t low,
                         std::int64_t high) {
  const std::string expected =
      "expected an integer from " + std::to_string(low) + " to " + std::to_string(high);
  if (!v.is_number_integer()) throw JsonFieldError(pointer, expected);
  if (v.is_number_unsigned()) {
    const auto u = v.get<std::uint64_t>();
    if (high < 0 || u > static_cast<std::uint64_t>(high) || static_cast<std::int64_t>(u) < low) {
      throw JsonFieldError(pointer, expected + ", not " + v.dump());
    }
    return static_cast<std::int64_t>(u);
  }
  const auto i = v.get<std::int64_t>();
  if (i < low || i > high) throw JsonFieldError(pointer, expected + ", not " + v.dump());
  return i;
}

double finiteNumber(const nlohmann::json& v, const std::string& pointer) {
  if (!v.is_number()) throw JsonFieldError(pointer, "expected a number");
  const double d = v.get<double>();
  if (!std::isfinite(d)) throw JsonFieldError(pointer, "expected a number within a double's range");
  return d;
}

const std::string& textFrom(const nlohmann::json& v, const std::string& pointer) {
  if (!v.is_string()) throw JsonFieldError(pointer, "expected a text");
  return v.get_ref<const std::string&>();
}

wizard::ScenarioEnd readScenarioEnd(const nlohmann::json& v, const std::string& pointer) {
  if (v == "Finish") return wizard::ScenarioEnd::Finish;
  if (v == "Cancel") return wizard::ScenarioEnd::Cancel;
  if (v == "Back") return wizard::ScenarioEnd::Back;
  throw JsonFieldError(pointer, "expected \"Finish\", \"Cancel\" or \"Back\"");
}

}  // namespace tnw
