#include "wizard/core/command_stack.h"

namespace tnw::wizard {

std::string UndoTexts::discardQuestion(int n) {
  return "Discard " + std::to_string(n) + (n == 1 ? " judgment?" : " judgments?");
}

}  // namespace tnw::wizard
