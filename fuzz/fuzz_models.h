#pragma once

#include "model/attribute_model.h"

// Std
#include <cstdlib>
#include <string>

namespace tnw::fuzz {

// Ends the run so that the fuzzer reports the input: a property did not hold.
inline void check(bool ok) {
  if (!ok) std::abort();
}

// numAtt attributes "A1".. scored 0..10 (the last one a cost from 100 down to 10) with value
// functions of two or three points; with an earlier direct result when previous is set.
inline AttributeModel fuzzModel(int numAtt, bool previous) {
  AttributeModel m;
  m.NumAtt = static_cast<std::int16_t>(numAtt);
  for (int a = 0; a < numAtt; ++a) {
    const auto i = static_cast<std::size_t>(a);
    m.AttName[i] = "A" + std::to_string(a + 1);
    const bool cost = a == numAtt - 1;
    m.AttOrientation[i] = cost ? "1" : "0";
    m.AttScoreLow[i] = cost ? 100.0 : 0.0;
    m.AttScoreHigh[i] = 10.0;
    m.NumPoints[i] = cost ? 3 : 2;
    m.PointScore[i][0] = m.AttScoreLow[i];
    m.PointValue[i][0] = 0.0;
    m.PointScore[i][1] = cost ? 40.0 : 10.0;
    m.PointValue[i][1] = cost ? 0.7 : 1.0;
    m.PointScore[i][2] = 10.0;
    m.PointValue[i][2] = 1.0;
    if (previous) {
      m.PrevWeight[i] = 0.1 * (a + 1);
      m.PrevWeightL[i] = 0.05 * (a + 1);
      m.PrevWeightH[i] = 0.15 * (a + 1);
    }
  }
  if (previous) {
    m.PrevTNType = "MAVT_DIRECT";
    m.PrevRefAtt = 1.0;
  }
  return m;
}

}  // namespace tnw::fuzz
