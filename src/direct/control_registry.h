#pragma once

#include "direct/control_state.h"

// Std
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tnw {

// The named controls of a dialog with their caption, enabled and visible state, looked up by
// the control's given name ("cmdNext", "lblRefAtt", ...). Presenters write it; views render it.
class ControlRegistry {
 public:
  // Adds a control with its design caption, enabled and visible.
  void add(const std::string& name, const std::string& caption = {});
  // The state of a control; an unknown name gives a disabled, invisible, empty control.
  const ControlState& control(std::string_view name) const;
  // Whether a control is known.
  bool has(std::string_view name) const;
  // Sets a control's caption or text.
  void setCaption(std::string_view name, const std::string& caption);
  // Enables or disables a control.
  void setEnabled(std::string_view name, bool enabled);
  // Shows or hides a control.
  void setVisible(std::string_view name, bool visible);
  // Whether a control is enabled (false for an unknown one).
  bool enabled(std::string_view name) const { return control(name).enabled; }
  // The caption or text of a control.
  const std::string& caption(std::string_view name) const { return control(name).caption; }
  // The names of every control, sorted.
  std::vector<std::string> names() const;

 private:
  ControlState* find(std::string_view name);

  std::map<std::string, ControlState, std::less<>> m_controls;
};

}  // namespace tnw
