#include "model_json/judgment_files.h"

#include "model_json/judgments_json.h"
#include "model_json/scenario_json.h"

// JSON
#include <nlohmann/json.hpp>

// Std
#include <fstream>

namespace tnw {
namespace {

using json = nlohmann::ordered_json;

constexpr const char* kCannotAccess = "There are problems in accessing the relevant data.";

std::string dumped(const json& value) {
  return value.dump(-1, ' ', false, json::error_handler_t::replace);
}

// The items of a list, one per line.
std::string listLines(const std::vector<json>& items, const std::string& indent) {
  std::string out = "[";
  for (std::size_t i = 0; i < items.size(); ++i) {
    out += (i == 0 ? "\n" : ",\n") + indent + dumped(items[i]);
  }
  return out + (items.empty() ? "]" : "\n" + indent.substr(1) + "]");
}

std::optional<std::string> writeText(const std::string& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  if (out) out << text;
  if (out) out.flush();
  if (!out) return "The file \"" + path + "\" cannot be written.";
  return std::nullopt;
}

// Reads the file at path within maxBytes into text; the reason when it cannot be read.
std::optional<std::string> readText(const std::string& path, std::size_t maxBytes,
                                    std::string& text) {
  switch (readInputFile(path, maxBytes, text)) {
    case InputFileStatus::Read:
      return std::nullopt;
    case InputFileStatus::TooLarge:
      return "The file \"" + path + "\" is larger than " + std::to_string(maxBytes) + " bytes.";
    case InputFileStatus::CannotAccess:
      break;
  }
  return std::string(kCannotAccess);
}

}  // namespace

std::string writeTradeOffJudgments(const std::vector<tradeoffs::TradeOffJudgment>& judgments) {
  std::vector<json> items;
  for (const tradeoffs::TradeOffJudgment& j : judgments) {
    json item = json::object();
    item["first"] = j.first;
    item["second"] = j.second;
    item["scores"] = json::array({j.scores[0], j.scores[1], j.scores[2], j.scores[3]});
    item["response"] = j.response;
    items.push_back(std::move(item));
  }
  return listLines(items, " ") + "\n";
}

std::string writeDirectIntervals(const direct::DirectScenario& scenario) {
  std::string out = "{";
  if (scenario.order) out += "\"order\": " + dumped(json(*scenario.order)) + ",";
  if (scenario.reference) {
    out += (scenario.order ? " " : "") + std::string("\"reference\": ") +
           std::to_string(*scenario.reference) + ",";
  }
  std::vector<json> steps;
  for (const direct::ScenarioStep& s : scenario.steps) {
    json step = json::object();
    if (s.restart) {
      step["restart"] = true;
    } else {
      step["target"] = s.target;
      step["lower"] = s.lower;
      step["upper"] = s.upper;
    }
    steps.push_back(std::move(step));
  }
  return out + "\n \"steps\": " + listLines(steps, "  ") + "}\n";
}

std::optional<std::string> JsonJudgmentsFile::save(
    const std::string& path, const std::vector<tradeoffs::TradeOffJudgment>& judgments) const {
  return writeText(path, writeTradeOffJudgments(judgments));
}

std::optional<std::string> JsonJudgmentsFile::load(
    const std::string& path, int numAtt,
    std::vector<tradeoffs::TradeOffJudgment>& judgments) const {
  judgments.clear();
  std::string text;
  if (auto why = readText(path, kJudgmentsJsonLimits.maxBytes, text)) return why;
  if (auto error = readTradeOffJudgments(text, numAtt, judgments)) return error->text();
  return std::nullopt;
}

std::optional<std::string> JsonIntervalsFile::save(const std::string& path,
                                                   const direct::DirectScenario& scenario) const {
  return writeText(path, writeDirectIntervals(scenario));
}

std::optional<std::string> JsonIntervalsFile::load(const std::string& path,
                                                   direct::DirectScenario& scenario) const {
  scenario = {};
  std::string text;
  if (auto why = readText(path, kScenarioJsonLimits.maxBytes, text)) return why;
  if (auto error = readDirectScenario(text, scenario)) return error->text();
  return std::nullopt;
}

}  // namespace tnw
