#include "scripted/scripted_dialog.h"

#include "component/windows/message_window.h"
#include "scripted/scripted_trace.h"

// Std
#include <utility>

namespace tnw {

ScriptedDialog::ScriptedDialog(std::string name, ScreenSize size, MessageWindow& window,
                               const ScriptedTrace& trace)
    : m_name(std::move(name)),
      m_size(size),
      m_window(window),
      m_trace(trace),
      m_self(std::make_shared<ScriptedDialog*>(this)) {
  m_trace.write(m_name + " created");
}

ScriptedDialog::~ScriptedDialog() {
  // Destructors run where nothing may throw, even when memory is short.
  try {
    m_trace.write(m_name + " destroyed");
  } catch (...) {
  }
}

void ScriptedDialog::showModeless() {
  trace("showModeless");
  becameVisible();
}

void ScriptedDialog::showModal() {
  trace("showModal");
  becameVisible();
}

void ScriptedDialog::setDialogVisible(bool visible) {
  trace(visible ? "visible" : "hidden");
  if (visible && !m_visible) {
    becameVisible();
  } else {
    m_visible = visible;
  }
}

void ScriptedDialog::moveDialog(int left, int top) {
  trace("moved to " + std::to_string(left) + "," + std::to_string(top));
}

void ScriptedDialog::actLater() {
  if (m_actPending) return;
  std::weak_ptr<ScriptedDialog*> self = m_self;
  m_actPending = m_window.post([self] {
    const std::shared_ptr<ScriptedDialog*> alive = self.lock();
    if (!alive) return;
    ScriptedDialog& dialog = **alive;
    dialog.m_actPending = false;
    if (dialog.m_visible) dialog.act();
  });
}

void ScriptedDialog::trace(const std::string& line) const { m_trace.write(m_name + " " + line); }

void ScriptedDialog::becameVisible() {
  m_visible = true;
  actLater();
}

}  // namespace tnw
