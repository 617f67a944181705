#pragma once

#include "model/attribute_model.h"
#include "tradeoffs/core/random_source.h"
#include "tradeoffs/core/tradeoffs_a_events.h"

// Std
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tnw::testing {

// Takes the trade-off dialog's events and does nothing with them.
class NullTradeOffsEvents : public tradeoffs::TradeOffsAEvents {
 public:
  void ExportTradeOffsW(const std::string&, std::vector<double>&, std::vector<double>&,
                        std::vector<double>&) override {}
  void SendMasseges(const std::string&) override {}
  void ShowTNWSelMethod() override {}
  void UnloadTNWizard(std::int16_t, bool) override {}
};

// Hands out a fixed sequence of draws, then repeats the last one.
class SequenceRandomSource : public tradeoffs::RandomSource {
 public:
  explicit SequenceRandomSource(std::vector<float> draws) : m_draws(std::move(draws)) {}
  float next() override {
    const float r = m_draws.empty() ? 0.0f : m_draws[std::min(m_next, m_draws.size() - 1)];
    ++m_next;
    return r;
  }
  // How many draws were taken.
  std::size_t taken() const { return m_next; }

 private:
  std::vector<float> m_draws;
  std::size_t m_next = 0;
};

// A model of numAtt benefit attributes named "Att1".."AttN", each scored 0..high with the linear
// value function (0, 0), (high, 1).
inline AttributeModel makeModel(int numAtt, double high = 10.0) {
  AttributeModel m;
  m.NumAtt = static_cast<std::int16_t>(numAtt);
  for (int i = 0; i < numAtt; ++i) {
    const auto a = static_cast<std::size_t>(i);
    m.AttName[a] = " Att" + std::to_string(i + 1) + " ";
    m.AttOrientation[a] = "0";
    m.AttScoreLow[a] = 0.0;
    m.AttScoreHigh[a] = high;
    m.NumPoints[a] = 2;
    m.PointScore[a][0] = 0.0;
    m.PointScore[a][1] = high;
    m.PointValue[a][0] = 0.0;
    m.PointValue[a][1] = 1.0;
  }
  return m;
}

}  // namespace tnw::testing
