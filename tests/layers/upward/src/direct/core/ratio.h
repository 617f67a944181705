#pragma once

// A Qt-free file that includes a view of its own folder: the check must refuse it too.
#include "direct/ui/ratio_view.h"
