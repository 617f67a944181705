#pragma once

// Std
#include <cstdint>
#include <vector>

namespace tnw::tradeoffs {

// The recorded trade-off judgments the regression reads. Judgment k (1-based, as the dialog
// counts) is kept at index k - 1 of every array.
struct JudgmentStore {
  // One judgment, as the arrays hold it at one index.
  struct Entry {
    double scoreAFirst = 0.0;
    double scoreBFirst = 0.0;
    double scoreASecond = 0.0;
    double scoreBSecond = 0.0;
    std::int16_t prefResponse = 0;
    std::vector<double> valueDiff;
    std::int16_t firstAtt = 0;
    std::int16_t secondAtt = 0;
  };

  // The number of judgments recorded.
  int JudgmentCount = 0;
  // The scores of A and B on the first and the second attribute of each judgment.
  std::vector<double> ScoreAFirst;
  std::vector<double> ScoreBFirst;
  std::vector<double> ScoreASecond;
  std::vector<double> ScoreBSecond;
  // The response of each judgment, -3..3 (0 for a numerical trade-off).
  std::vector<std::int16_t> PrefResponse;
  // The value difference of each attribute (0-based) in each judgment: ValueDiff[k - 1][j - 1].
  std::vector<std::vector<double>> ValueDiff;
  // The two attributes (0-based) each judgment compared: the first and the second of its pair.
  std::vector<std::int16_t> FirstAtt;
  std::vector<std::int16_t> SecondAtt;

  // Forgets every judgment and makes room for `size` judgments over `numAtt` attributes.
  void dimension(int size, int numAtt) {
    const auto n = static_cast<std::size_t>(size < 0 ? 0 : size);
    JudgmentCount = 0;
    ScoreAFirst.assign(n, 0.0);
    ScoreBFirst.assign(n, 0.0);
    ScoreASecond.assign(n, 0.0);
    ScoreBSecond.assign(n, 0.0);
    PrefResponse.assign(n, 0);
    FirstAtt.assign(n, 0);
    SecondAtt.assign(n, 0);
    ValueDiff.assign(n, std::vector<double>(static_cast<std::size_t>(numAtt < 0 ? 0 : numAtt)));
  }

  // Makes room for at least `size` judgments, keeping those recorded.
  void extend(int size, int numAtt) {
    const auto n = static_cast<std::size_t>(size < 0 ? 0 : size);
    if (ScoreAFirst.size() >= n) return;
    ScoreAFirst.resize(n, 0.0);
    ScoreBFirst.resize(n, 0.0);
    ScoreASecond.resize(n, 0.0);
    ScoreBSecond.resize(n, 0.0);
    PrefResponse.resize(n, 0);
    FirstAtt.resize(n, 0);
    SecondAtt.resize(n, 0);
    ValueDiff.resize(n, std::vector<double>(static_cast<std::size_t>(numAtt < 0 ? 0 : numAtt)));
  }

  // The judgment at index i (0-based; an empty entry outside the arrays).
  Entry entry(int i) const {
    if (i < 0 || static_cast<std::size_t>(i) >= ScoreAFirst.size()) return {};
    const auto k = static_cast<std::size_t>(i);
    return {ScoreAFirst[k],  ScoreBFirst[k], ScoreASecond[k], ScoreBSecond[k],
            PrefResponse[k], ValueDiff[k],   FirstAtt[k],     SecondAtt[k]};
  }
  // Writes the judgment at index i (0-based), making room for it; nothing for a negative index.
  void setEntry(int i, const Entry& e, int numAtt) {
    if (i < 0) return;
    extend(i + 1, numAtt);
    const auto k = static_cast<std::size_t>(i);
    ScoreAFirst[k] = e.scoreAFirst;
    ScoreBFirst[k] = e.scoreBFirst;
    ScoreASecond[k] = e.scoreASecond;
    ScoreBSecond[k] = e.scoreBSecond;
    PrefResponse[k] = e.prefResponse;
    ValueDiff[k] = e.valueDiff;
    FirstAtt[k] = e.firstAtt;
    SecondAtt[k] = e.secondAtt;
  }
};

}  // namespace tnw::tradeoffs
