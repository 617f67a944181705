#include "scripted/scripted_scenario.h"

#include "model_json/json_fields.h"
#include "model_json/json_input.h"
#include "model_json/scenario_json.h"
#include "scripted/scripted_trace.h"

// Windows
#include <windows.h>

namespace tnw {

namespace {

bool scenarioGiven() {
  wchar_t path[MAX_PATH] = {};
  const DWORD length = GetEnvironmentVariableW(L"TNW_SCRIPTED_SCENARIO", path, MAX_PATH);
  return length > 0 && length < MAX_PATH;
}

std::string readScenarioFile(const ScriptedTrace& trace) {
  wchar_t path[MAX_PATH] = {};
  const DWORD length = GetEnvironmentVariableW(L"TNW_SCRIPTED_SCENARIO", path, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return {};
  HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    trace.write("scenario cannot be opened");
    return {};
  }
  std::string text;
  char buffer[4096];
  DWORD read = 0;
  while (ReadFile(file, buffer, sizeof(buffer), &read, nullptr) && read > 0)
    text.append(buffer, read);
  CloseHandle(file);
  return text;
}

void addRuns(const nlohmann::json& scenario, const char* key,
             std::deque<ScriptedScenario::Run>& runs) {
  const auto it = scenario.find(key);
  if (it == scenario.end()) return;
  const std::string list = jsonPointer("", key);
  if (!it->is_array()) throw JsonFieldError(list, "expected a list of runs");
  for (std::size_t i = 0; i < it->size(); ++i) runs.push_back({(*it)[i], jsonPointer(list, i)});
}

void readScenario(const nlohmann::json& scenario, std::deque<std::string>& selMethod,
                  std::deque<ScriptedScenario::Run>& direct,
                  std::deque<ScriptedScenario::Run>& tradeOffs) {
  if (!scenario.is_object()) throw JsonFieldError("the file", "expected a JSON object");
  if (const auto it = scenario.find("selMethod"); it != scenario.end()) {
    if (!it->is_array()) throw JsonFieldError("/selMethod", "expected a list of actions");
    for (std::size_t i = 0; i < it->size(); ++i) {
      const nlohmann::json& action = (*it)[i];
      if (!action.is_string()) {
        throw JsonFieldError(jsonPointer("/selMethod", i), "expected an action's name");
      }
      selMethod.push_back(action.get<std::string>());
    }
  }
  addRuns(scenario, "direct", direct);
  addRuns(scenario, "tradeOffs", tradeOffs);
}

}  // namespace

ScriptedScenario::ScriptedScenario(const ScriptedTrace& trace) : m_given(scenarioGiven()) {
  const std::string text = readScenarioFile(trace);
  if (text.empty()) return;
  nlohmann::json scenario;
  std::optional<JsonInputError> error = parseJsonText(text, kScenarioJsonLimits, scenario);
  if (!error) {
    try {
      readScenario(scenario, m_selMethod, m_direct, m_tradeOffs);
    } catch (const JsonFieldError& e) {
      error = e.error();
    }
  }
  if (error) {
    trace.write("scenario error: " + error->text());
    m_selMethod.clear();
    m_direct.clear();
    m_tradeOffs.clear();
  }
}

std::string ScriptedScenario::nextSelMethodAction() {
  if (m_selMethod.empty()) return {};
  std::string action = std::move(m_selMethod.front());
  m_selMethod.pop_front();
  return action;
}

ScriptedScenario::Run ScriptedScenario::nextDirectRun() {
  if (m_direct.empty()) return {};
  Run run = std::move(m_direct.front());
  m_direct.pop_front();
  return run;
}

ScriptedScenario::Run ScriptedScenario::nextTradeOffsRun() {
  if (m_tradeOffs.empty()) return {};
  Run run = std::move(m_tradeOffs.front());
  m_tradeOffs.pop_front();
  return run;
}

}  // namespace tnw
