#pragma once

#include "common/core/ui_services.h"

namespace tnw {

// Where a dialog's top-left corner goes, in the screen's units.
struct DialogPosition {
  int left = 0;
  int top = 0;

  friend constexpr bool operator==(DialogPosition a, DialogPosition b) = default;
};

// The position that centres a dialog of the given size on the screen: left at
// (screen width - dialog width) / 2, top at (screen height - dialog height) / 2, halves rounded
// down. A dialog larger than the screen gets a negative position, as in the host.
DialogPosition Center(ScreenSize screen, ScreenSize dialog);

}  // namespace tnw
