#pragma once

#include "common/core/currency.h"
#include "model/attribute_model.h"
#include "tradeoffs/core/random_source.h"
#include "tradeoffs/core/tradeoff_scores.h"

namespace tnw::tradeoffs {

// Draws the random alternatives A and B of a trade-off: one random score per attribute and
// alternative, and an exchange that keeps B from dominating A or A from dominating B.
class PairGenerator {
 public:
  // Draws from the given source, which must outlive the generator.
  explicit PairGenerator(RandomSource& random) : m_random(random) {}

  // The random score for the range ends P and Q (single precision) and the draw r in [0, 1).
  static Currency RandomScore(float P, float Q, float r);
  // Whether A and B must be exchanged on the first attribute: one dominates the other.
  static bool dominated(const TradeOffScores& s, bool sameDirection);

  // A random score on attribute att (0-based); 0 for an index outside the model's slots.
  Currency RandomScore(const AttributeModel& model, int att);
  // Draws A₁, B₁, A₂, B₂ in that order and exchanges A₁ and B₁ when the pair is dominated.
  TradeOffScores drawScores(const AttributeModel& model, int first, int second);

 private:
  RandomSource& m_random;
};

}  // namespace tnw::tradeoffs
