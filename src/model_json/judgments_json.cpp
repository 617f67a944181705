#include "model_json/judgments_json.h"

#include "model_json/json_fields.h"

namespace tnw {
namespace {

using nlohmann::json;

// The attribute index of field `key` of judgment `at`, which must be an index of the model.
int attributeIndex(const json& item, const char* key, const std::string& base, std::size_t at,
                   int numAtt) {
  const std::string pointer = jsonPointer(jsonPointer(base, at), key);
  const std::string where = "judgment [" + std::to_string(at) + "]: \"" + key + "\" ";
  const auto it = item.find(key);
  if (it == item.end()) throw JsonFieldError(pointer, where + "is missing");
  if (!it->is_number_integer()) throw JsonFieldError(pointer, where + "is not an integer");
  try {
    return static_cast<int>(integerFrom(*it, pointer, 0, numAtt - 1));
  } catch (const JsonFieldError&) {
    const std::string range = numAtt > 0 ? "0 to " + std::to_string(numAtt - 1) : "none";
    throw JsonFieldError(
        pointer, where + it->dump() +
                     " is not an attribute index of the model (its indexes: " + range + ")");
  }
}

tradeoffs::TradeOffJudgment readJudgment(const json& item, const std::string& base, std::size_t at,
                              int numAtt) {
  const std::string pointer = jsonPointer(base, at);
  const std::string where = "judgment [" + std::to_string(at) + "]: ";
  if (!item.is_object()) throw JsonFieldError(pointer, where + "is not a JSON object");
  tradeoffs::TradeOffJudgment jd;
  jd.first = attributeIndex(item, "first", base, at, numAtt);
  jd.second = attributeIndex(item, "second", base, at, numAtt);
  const std::string scores = jsonPointer(pointer, "scores");
  const std::string four = where + "\"scores\" must be an array of four numbers [a1,b1,a2,b2]";
  const auto it = item.find("scores");
  if (it == item.end() || !it->is_array() || it->size() != 4) throw JsonFieldError(scores, four);
  for (std::size_t i = 0; i < 4; ++i) {
    const json& v = (*it)[i];
    if (!v.is_number()) throw JsonFieldError(jsonPointer(scores, i), four);
    jd.scores[i] = finiteNumber(v, jsonPointer(scores, i));
  }
  if (const auto r = item.find("response"); r != item.end()) {
    try {
      jd.response = static_cast<int>(integerFrom(*r, jsonPointer(pointer, "response"), -3, 3));
    } catch (const JsonFieldError& e) {
      throw JsonFieldError(e.error().where, where + "\"response\" must be an integer from -3 to 3");
    }
  }
  return jd;
}

std::vector<tradeoffs::TradeOffJudgment> readJudgments(const json& list, const std::string& base, int numAtt) {
  std::vector<tradeoffs::TradeOffJudgment> judgments;
  for (std::size_t at = 0; at < list.size(); ++at) {
    judgments.push_back(readJudgment(list[at], base, at, numAtt));
  }
  return judgments;
}


}  // namespace

std::optional<JsonInputError> readTradeOffJudgments(std::string_view text, int numAtt,
                                                    std::vector<tradeoffs::TradeOffJudgment>& judgments) {
  judgments.clear();
  json j;
  if (auto error = parseJsonText(text, kJudgmentsJsonLimits, j)) return error;
  try {
    if (!j.is_array()) throw JsonFieldError("the file", "the judgments are not a JSON array");
    judgments = readJudgments(j, "", numAtt);
  } catch (const JsonFieldError& e) {
    judgments.clear();
    return e.error();
  }
  return std::nullopt;
}

std::optional<JsonInputError> readTradeOffScenario(const json& value, const std::string& pointer,
                                                   int numAtt, tradeoffs::TradeOffScenario& scenario) {
  scenario = {};
  try {
    if (!value.is_object()) throw JsonFieldError(pointer, "expected the run as a JSON object");
    if (const auto it = value.find("judgments"); it != value.end()) {
      const std::string list = jsonPointer(pointer, "judgments");
      if (!it->is_array()) throw JsonFieldError(list, "the judgments are not a JSON array");
      scenario.judgments = readJudgments(*it, list, numAtt);
    }
    if (const auto it = value.find("end"); it != value.end()) {
      scenario.end = readScenarioEnd(*it, jsonPointer(pointer, "end"));
    }
  } catch (const JsonFieldError& e) {
    scenario = {};
    return e.error();
  }
  return std::nullopt;
}

}  // namespace tnw
