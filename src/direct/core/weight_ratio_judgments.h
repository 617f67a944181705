#pragma once

#include "direct/core/direct_result.h"
#include "direct/core/region_handles.h"
#include "model/attribute_model.h"

// Std
#include <vector>

namespace tnw::direct {

// The judgment tables of the direct method: for every attribute the interval of the ratio of
// its weight to the reference attribute's (LowerWeights, CloseWeights, UpperWeights of the
// method's result), whether it is judged, and the region handles it was judged with. Works on
// the final order and RefAtt of the result.
class WeightRatioJudgments {
 public:
  // Everything the judgments hold, the result's three ratio tables included: what undo puts
  // back.
  struct State {
    int count = 0;
    std::vector<bool> judged;
    std::vector<bool> hasHandles;
    std::vector<RegionHandles> handles;
    std::vector<double> lowerWeights;
    std::vector<double> closeWeights;
    std::vector<double> upperWeights;
  };

  // Judgments over the result's tables, sized for the model's attributes (clamped to 0..31).
  WeightRatioJudgments(const AttributeModel& model, DirectResult& result);

  // Number of attributes judged over.
  int count() const { return m_count; }
  // Sizes the tables for the model again and marks every attribute open.
  void reset();
  // Sets the initial intervals from the order: 0.8 for less important attributes, 1 (judged)
  // for the reference's group, 1.2 for more important ones.
  void CalcIniWeightRatios();
  // Clears every judged flag and sets the initial intervals again.
  void ReStartJudgments();
  // Records [lower, upper] for target t with the handles it was drawn with, copies it to t's
  // ties and propagates it up and down the order; returns the ties that became judged.
  // Nothing happens (empty result) for an index outside the attributes.
  std::vector<int> RecordWeightRatios(int t, double lower, double upper,
                                      const RegionHandles& handles);

  // Number of groups of the final order.
  int groupCount() const { return m_result.FinalGroupCount; }
  // The reference attribute.
  int refAtt() const { return m_result.RefAtt; }
  // Group of attribute i in the final order (0 when unknown).
  int group(int i) const;
  // Whether attribute i is judged.
  bool judged(int i) const;
  // Marks attribute i judged or open.
  void setJudged(int i, bool value);
  // Stores the region handles of attribute i.
  void setHandles(int i, const RegionHandles& handles);
  // The region handles stored for attribute i, if it was judged with handles.
  const RegionHandles* handles(int i) const;
  // Lower, middle and upper ratio of attribute i (0 outside the attributes).
  double lower(int i) const;
  double middle(int i) const;
  double upper(int i) const;
  // Whether every attribute is judged: the page is complete.
  bool isComplete() const;
  // The number of judged attributes.
  int judgedCount() const;
  // The judgments as they are now.
  State state() const;
  // Puts the judgments (and the result's ratio tables) back as state() took them.
  void restore(const State& state);
  // The judged flags in model order.
  const std::vector<bool>& judgedFlags() const { return m_judged; }

 private:
  bool valid(int i) const { return i >= 0 && i < m_count; }
  void setInterval(int i, double lower, double middle, double upper);
  void propagateUp(int t);
  void propagateDown(int t);

  const AttributeModel& m_model;
  DirectResult& m_result;
  int m_count = 0;
  std::vector<bool> m_judged;
  std::vector<bool> m_hasHandles;
  std::vector<RegionHandles> m_handles;
};

}  // namespace tnw::direct
