#pragma once

// Std
#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tnw {

// Attribute slots in the model file, and the largest number of attributes a model can have.
inline constexpr int kMaxAttributes = 31;
// Points of a value function, at most.
inline constexpr int kMaxPoints = 11;

// The host's decision model as the wizard reads it from the model file. Field names are the
// host's. Counts come straight from the file and are not trusted: use attributeCount() and
// pointCount() to loop.
struct AttributeModel {
  // Block 1: the number of attributes as stored (may lie outside 0..31 in a damaged file).
  std::int16_t NumAtt = 0;

  // Block 4: texts per attribute, raw (not trimmed), converted to UTF-8.
  std::array<std::string, kMaxAttributes> AttName;
  std::array<std::string, kMaxAttributes> AttDefinition;
  std::array<std::string, kMaxAttributes> AttOrientation;

  // Block 7: score ranges (either order) and value-function points, [attribute][point].
  std::array<double, kMaxAttributes> AttScoreLow{};
  std::array<double, kMaxAttributes> AttScoreHigh{};
  std::array<std::int16_t, kMaxAttributes> NumPoints{};
  std::array<std::array<std::optional<double>, kMaxPoints>, kMaxAttributes> PointScore{};
  std::array<std::array<std::optional<double>, kMaxPoints>, kMaxAttributes> PointValue{};

  // Block 8: the earlier result stored by the host.
  std::string PrevTNType;
  std::optional<double> PrevRefAtt;
  std::array<double, kMaxAttributes> PrevWeight{};
  std::array<double, kMaxAttributes> PrevWeightH{};
  std::array<double, kMaxAttributes> PrevWeightL{};

  // Field-by-field equality (a NaN stored in the file compares unequal, as doubles do).
  friend bool operator==(const AttributeModel&, const AttributeModel&) = default;

  // NumAtt clamped to 0..31: the number of attribute slots that may be used.
  int attributeCount() const {
    return NumAtt < 0 ? 0 : (NumAtt > kMaxAttributes ? kMaxAttributes : NumAtt);
  }
  // NumPoints of attribute att clamped to 0..11 (0 for an index outside 0..30).
  int pointCount(int att) const {
    if (att < 0 || att >= kMaxAttributes) return 0;
    const int n = NumPoints[static_cast<std::size_t>(att)];
    return n < 0 ? 0 : (n > kMaxPoints ? kMaxPoints : n);
  }
};

}  // namespace tnw
