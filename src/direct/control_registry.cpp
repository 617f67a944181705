#include "direct/control_registry.h"

namespace tnw {

namespace {
const ControlState kUnknown{{}, false, false};
}  // namespace

void ControlRegistry::add(const std::string& name, const std::string& caption) {
  m_controls[name] = ControlState{caption, true, true};
}

const ControlState& ControlRegistry::control(std::string_view name) const {
  const auto it = m_controls.find(name);
  return it == m_controls.end() ? kUnknown : it->second;
}

bool ControlRegistry::has(std::string_view name) const {
  return m_controls.find(name) != m_controls.end();
}

ControlState* ControlRegistry::find(std::string_view name) {
  const auto it = m_controls.find(name);
  return it == m_controls.end() ? nullptr : &it->second;
}

void ControlRegistry::setCaption(std::string_view name, const std::string& caption) {
  if (ControlState* c = find(name)) c->caption = caption;
}

void ControlRegistry::setEnabled(std::string_view name, bool enabled) {
  if (ControlState* c = find(name)) c->enabled = enabled;
}

void ControlRegistry::setVisible(std::string_view name, bool visible) {
  if (ControlState* c = find(name)) c->visible = visible;
}

std::vector<std::string> ControlRegistry::names() const {
  std::vector<std::string> result;
  for (const auto& [name, state] : m_controls) result.push_back(name);
  return result;
}

}  // namespace tnw
