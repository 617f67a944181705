#include "scripted/scripted_scenario.h"

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

}  // namespace

ScriptedScenario::ScriptedScenario(const ScriptedTrace& trace) : m_given(scenarioGiven()) {
  const std::string text = readScenarioFile(trace);
  if (text.empty()) return;
  try {
    const nlohmann::json scenario = nlohmann::json::parse(text);
    for (const auto& action : scenario.value("selMethod", nlohmann::json::array()))
      m_selMethod.push_back(action.get<std::string>());
    for (const auto& run : scenario.value("direct", nlohmann::json::array()))
      m_direct.push_back(run);
    for (const auto& run : scenario.value("tradeOffs", nlohmann::json::array()))
      m_tradeOffs.push_back(run);
  } catch (const nlohmann::json::exception& error) {
    trace.write(std::string("scenario error: ") + error.what());
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

nlohmann::json ScriptedScenario::nextDirectRun() {
  if (m_direct.empty()) return nullptr;
  nlohmann::json run = std::move(m_direct.front());
  m_direct.pop_front();
  return run;
}

nlohmann::json ScriptedScenario::nextTradeOffsRun() {
  if (m_tradeOffs.empty()) return nullptr;
  nlohmann::json run = std::move(m_tradeOffs.front());
  m_tradeOffs.pop_front();
  return run;
}

}  // namespace tnw
