#pragma once

// Std
#include <string>

namespace tnw {

// What a view shows of one named control: its caption or text, and whether it is enabled and
// visible.
struct ControlState {
  std::string caption;
  bool enabled = true;
  bool visible = true;
};

}  // namespace tnw
