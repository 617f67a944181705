#include "model/center.h"

// Std
#include <cstdint>

namespace tnw {
namespace {

// Half of a - b rounded down, computed wide so that no pair of ints can overflow.
int halfDifference(int a, int b) {
  const std::int64_t diff = static_cast<std::int64_t>(a) - b;
  return static_cast<int>(diff >= 0 ? diff / 2 : -((-diff + 1) / 2));
}

}  // namespace

DialogPosition Center(ScreenSize screen, ScreenSize dialog) {
  return {halfDifference(screen.width, dialog.width), halfDifference(screen.height, dialog.height)};
}

}  // namespace tnw
