#include "wizard/core/command_stack.h"

// Std
#include <utility>

namespace tnw::wizard {

void CommandStack::push(Command command) {
  m_done.push_back(std::move(command));
  m_undone.clear();
}

bool CommandStack::undo() {
  if (m_done.empty()) return false;
  // Room first, so that once the command has run, moving it cannot fail; if the command itself
  // fails, the history stays as it was.
  m_undone.reserve(m_undone.size() + 1);
  m_done.back().undo();
  m_undone.push_back(std::move(m_done.back()));
  m_done.pop_back();
  return true;
}

bool CommandStack::redo() {
  if (m_undone.empty()) return false;
  m_done.reserve(m_done.size() + 1);
  m_undone.back().redo();
  m_done.push_back(std::move(m_undone.back()));
  m_undone.pop_back();
  return true;
}

void CommandStack::clear() {
  m_done.clear();
  m_undone.clear();
}

std::string CommandStack::discardQuestion(int n) {
  return "Discard " + std::to_string(n) + (n == 1 ? " judgment?" : " judgments?");
}

}  // namespace tnw::wizard
