#pragma once

// A file of the lowest layer that reaches up into a method: the check must refuse it.
#include "direct/core/ratio.h"
