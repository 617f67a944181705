#pragma once

// Std
#include <string>
#include <vector>

// Prints the usage text to standard error and returns the usage exit status (1).
int tnwUsage();

// Exit status when a model file cannot be opened.
inline constexpr int kExitCannotOpen = 2;
