#pragma once

#include "model_json/json_input.h"
#include "wizard/core/scenario_end.h"

// JSON
#include <nlohmann/json.hpp>

// Std
#include <cstdint>
#include <stdexcept>
#include <string>

namespace tnw {

// A field that does not hold what its input needs; the readers catch it and return its error.
class JsonFieldError : public std::runtime_error {
 public:
  // The field's JSON pointer and what it should hold.
  JsonFieldError(const std::string& pointer, const std::string& what)
      : std::runtime_error(pointer + ": " + what), m_error{pointer, what} {}
  // The pointer and the reason apart.
  const JsonInputError& error() const { return m_error; }

 private:
  JsonInputError m_error;
};

// The integer v from low to high; JsonFieldError otherwise (a real such as 1.9, a boolean, text,
// or a number outside the range, however large, is refused, never converted).
std::int64_t integerFrom(const nlohmann::json& v, const std::string& pointer, std::int64_t low,
                         std::int64_t high);

// The finite number v; JsonFieldError otherwise (booleans are not numbers).
double finiteNumber(const nlohmann::json& v, const std::string& pointer);

// The text v; JsonFieldError when it is not a string.
const std::string& textFrom(const nlohmann::json& v, const std::string& pointer);

// How a run ends, from "Finish", "Cancel" or "Back"; JsonFieldError otherwise.
wizard::ScenarioEnd readScenarioEnd(const nlohmann::json& v, const std::string& pointer);

}  // namespace tnw
