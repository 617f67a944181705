#pragma once

#include "tradeoffs/core/judgment_store.h"
#include "tradeoffs/core/regression_work.h"

// Std
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tnw {
struct AttributeModel;
}  // namespace tnw

namespace tnw::tradeoffs {

// How much one recorded trade-off judgment lowers the consistency index: the index of the fit
// without it, and the score of B that would have agreed with the estimated weights.
struct JudgmentInfluence {
  // The judgment's number, 1-based as the dialog counts.
  int judgment = 0;
  // The pair's attributes (0-based).
  int first = 0;
  int second = 0;
  // The scores: A and B on the first attribute, A and B on the second.
  std::array<double, 4> scores{};
  // The response (0 for a numerical trade-off).
  int response = 0;
  // The consistency index of the fit without this judgment.
  double indexWithout = 0.0;
  // indexWithout minus the index of the fit with every judgment.
  double gain = 0.0;
  // B's score on the second (first) attribute that, the other three scores kept, makes the
  // estimated weights fit this judgment exactly; none when no score in the range does.
  std::optional<double> fittedBSecond;
  std::optional<double> fittedBFirst;
};

// Leave-one-out over the recorded trade-off judgments: each judgment is left out in turn, the
// fit of the others is found (appending its artificial observation by the same rule), and the
// judgments whose removal raises the consistency index most are reported.
class LeaveOneOut {
 public:
  // How many judgments the results page lists.
  static constexpr int kShown = 3;
  // The caption of the list on the regression status tab.
  static constexpr const char* kCaption = "Judgments that lower the consistency index most:";
  // The list's one line when no judgment lowers the index.
  static constexpr const char* kNoneHurts = "No judgment lowers the consistency index.";

  // The at most `count` judgments whose removal raises the index of `full`, the completed fit
  // of these judgments (the working arrays of Regression::RegressMain), above it the most,
  // largest gain first (equal gains in the judgments' order). The fit without each judgment is
  // found from `full` by a rank-one downdate; a listed index whose downdate is not certain to
  // agree with a new fit to rounding (a judgment of high leverage, an ill-conditioned fit) is
  // that of a new fit. Judgments whose removal leaves a fit that cannot be completed are passed
  // over. The fitted scores of B use the coefficients of `full` (Coef, 1-based).
  static std::vector<JudgmentInfluence> worst(const JudgmentStore& store,
                                              const AttributeModel& model,
                                              const RegressionWork& full, int count = kShown);
  // The same, running the full fit itself, with the gains taken above `fullIndex` and the fitted
  // scores formed from `coef`, the fit's shifted coefficients, 1-based.
  static std::vector<JudgmentInfluence> worst(const JudgmentStore& store,
                                              const AttributeModel& model,
                                              const std::vector<double>& coef, double fullIndex,
                                              int count = kShown);
  // The consistency index of the fit without judgment `judgment` (1-based), by running the
  // whole regression again on the other judgments; none when that fit cannot be completed.
  static std::optional<double> indexWithout(const JudgmentStore& store, int numAtt, int judgment);
  // The same for every judgment in turn (entry k - 1 for judgment k), from the full fit by the
  // rank-one downdate of its inverse; where the downdate leaves the sums (near) singular, they are
  // taken down and inverted by the fit's own steps, and where leaving a judgment out changes
  // whether the artificial observation is appended, the regression is run again as above.
  static std::vector<std::optional<double>> indexesWithout(const JudgmentStore& store, int numAtt);
  // A score on attribute `att` within its score range whose single-attribute value is `value`
  // (to the value's four decimals); none when there is no such score.
  static std::optional<double> scoreForValue(const AttributeModel& model, int att, double value);
  // The list line of one judgment.
  static std::string describe(const AttributeModel& model, const JudgmentInfluence& j);
};

}  // namespace tnw::tradeoffs
