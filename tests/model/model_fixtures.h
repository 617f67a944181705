#pragma once

#include "model/attribute_model.h"

namespace tnw::testing {

// A varied model: seven attributes with texts of every length class, both orientations, score
// ranges in both orders, value functions of 1 to 11 points (some with empty Variants) and an
// earlier direct result.
inline AttributeModel variedModel() {
  AttributeModel m;
  m.NumAtt = 7;
  const char* names[] = {"Price", "  Fuel use ", "Größe", "Safety €", "", "Boot", "Comfort"};
  for (std::size_t a = 0; a < 7; ++a) {
    m.AttName[a] = names[a];
    m.AttDefinition[a] = a == 2 ? std::string(300, 'x') : "Definition " + std::to_string(a);
    m.AttOrientation[a] = a % 2 == 0 ? "1" : "0";
    m.AttScoreLow[a] = a == 1 ? 12.5 : 10.0 * static_cast<double>(a);
    m.AttScoreHigh[a] = a == 1 ? 4.0 : 10.0 * static_cast<double>(a) + 100.0;
    const int n = static_cast<int>(a) + 1 + (a == 6 ? 4 : 0);
    m.NumPoints[a] = static_cast<std::int16_t>(n);
    for (int k = 0; k < n; ++k) {
      const auto kk = static_cast<std::size_t>(k);
      m.PointScore[a][kk] =
          m.AttScoreLow[a] + (m.AttScoreHigh[a] - m.AttScoreLow[a]) * k / (n > 1 ? n - 1 : 1);
      m.PointValue[a][kk] = n > 1 ? static_cast<double>(k * k) / ((n - 1) * (n - 1)) : 0.5;
    }
  }
  m.PointValue[3][2].reset();
  m.PrevTNType = "MAVT_DIRECT";
  m.PrevRefAtt = 2.0;
  for (std::size_t a = 0; a < 7; ++a) {
    m.PrevWeight[a] = 0.1 + 0.01 * static_cast<double>(a);
    m.PrevWeightH[a] = 0.2 + 0.01 * static_cast<double>(a);
    m.PrevWeightL[a] = 0.05 * static_cast<double>(a);
  }
  return m;
}

}  // namespace tnw::testing
