#pragma once

// Std
#include <cstdint>
#include <span>

namespace tnw {

// The bytes of the built-in sample model file (choosing a family car: six attributes, no earlier
// result), written from samples/family_car.json by the project's own writer at build time.
std::span<const std::uint8_t> builtInSampleModel();

}  // namespace tnw
