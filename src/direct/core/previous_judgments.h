#pragma once

#include "direct/core/direct_result.h"
#include "direct/core/weight_ratio_judgments.h"
#include "model/attribute_model.h"

// Std
#include <cstdint>
#include <string>
#include <vector>

namespace tnw::direct {

// Resuming the direct method from the earlier result stored in the model: the earlier weights
// turned back into ratio intervals against a reference attribute (GetPreviousWeightRatios),
// and the importance order rebuilt from them (GetPreviousOrder).
class PreviousJudgments {
 public:
  // How a resumption went.
  enum class Outcome {
    Resumed,              // the tables hold the earlier intervals, every attribute judged
    ZeroReferenceWeight,  // an earlier weight of the reference attribute is zero
    BadReference,         // the stored reference is not an attribute of the model
    NotFinite             // an earlier weight or a ratio from it is not a finite number
  };

  // An order rebuilt from the earlier middle ratios.
  struct Order {
    std::int16_t GroupCount = 0;
    std::vector<std::int16_t> GroupSize;  // index 0..NumAtt
    std::vector<std::int16_t> AttGroup;   // index 0..NumAtt-1; 0 for an attribute not placed
  };

  // Whether the model holds an earlier result to resume ("MAVT_DIRECT" or "MAVT_TRADEOFFS").
  static bool hasPreviousResult(const AttributeModel& model);
  // The reference attribute for an earlier result without one: starting from attribute 0, every
  // later attribute nearer to the middle of the weights than attribute 0 takes its place (the
  // distance to beat is not lowered, so the last such attribute wins; intended).
  static int chooseReference(const AttributeModel& model, int n);
  // Sets the result's RefAtt and three ratio tables and the judged flags from the model's
  // earlier weights. On any outcome but Resumed nothing is changed.
  static Outcome GetPreviousWeightRatios(const AttributeModel& model, DirectResult& result,
                                         WeightRatioJudgments& judgments);
  // Groups from the middle ratios: equal ratios (compared exactly) share a group, the largest
  // first; a negative ratio is never placed.
  static Order orderFromMiddleRatios(const std::vector<double>& middle);
  // GetPreviousOrder: resumes the ratios, then rebuilds the order from the middle ratios.
  static Outcome GetPreviousOrder(const AttributeModel& model, DirectResult& result,
                                  WeightRatioJudgments& judgments, Order& order);
  // The message shown when resumption is not possible ("" for Resumed).
  static std::string message(Outcome outcome);
};

}  // namespace tnw::direct
