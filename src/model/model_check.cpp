#include "model/model_check.h"

#include "common/core/number_format.h"
#include "model/value_function.h"

// Std
#include <cmath>
#include <limits>

namespace tnw {
namespace {

// A number a score box can hold: finite, and finite as single precision too.
bool usableNumber(double v) {
  return std::isfinite(v) && std::fabs(v) <= std::numeric_limits<float>::max();
}

std::string attributeText(const AttributeModel& model, int att) {
  return "the attribute \"" + model.AttName[static_cast<std::size_t>(att)] + "\"";
}

std::optional<std::string> rangeProblem(const AttributeModel& model, int att) {
  const auto i = static_cast<std::size_t>(att);
  const double low = model.AttScoreLow[i];
  const double high = model.AttScoreHigh[i];
  const std::string what = "The score range of " + attributeText(model, att);
  if (!usableNumber(low) || !usableNumber(high)) {
    return what + " has an end that is not a number the wizard can use.";
  }
  if (low == high) {
    return what + " has no width: both ends are " + generalText(low) + ".";
  }
  return std::nullopt;
}

std::optional<std::string> pointProblem(const AttributeModel& model, int att) {
  const auto i = static_cast<std::size_t>(att);
  const std::string what =
      "The value function of " + attributeText(model, att) + " cannot be evaluated: ";
  const int n = model.NumPoints[i];
  for (int k = 0; k < n; ++k) {
    const auto kk = static_cast<std::size_t>(k);
    if (!usableNumber(model.PointScore[i][kk].value_or(0.0)) ||
        !usableNumber(model.PointValue[i][kk].value_or(0.0))) {
      return what + "point " + std::to_string(k + 1) + " holds a number the wizard cannot use.";
    }
    for (int m = 0; m < k; ++m) {
      const double a = model.PointScore[i][static_cast<std::size_t>(m)].value_or(0.0);
      if (a == model.PointScore[i][kk].value_or(0.0)) {
        return what + "points " + std::to_string(m + 1) + " and " + std::to_string(k + 1) +
               " share the score " + generalText(a) + ".";
      }
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> attributeCountProblem(const AttributeModel& model) {
  if (model.NumAtt >= 1 && model.NumAtt <= kMaxAttributes) return std::nullopt;
  return "The current model has " + std::to_string(model.NumAtt) +
         " attributes. The wizard can only weigh from 1 to 31 attributes.";
}

std::optional<std::string> valueFunctionProblem(const AttributeModel& model, int att) {
  if (att < 0 || att >= kMaxAttributes) {
    return valueFailureMessage(model, att, ValueFailure::AttributeOutOfRange);
  }
  const int n = model.NumPoints[static_cast<std::size_t>(att)];
  if (n < 1) return valueFailureMessage(model, att, ValueFailure::NoPoints);
  if (n > kMaxPoints) return valueFailureMessage(model, att, ValueFailure::TooManyPoints);
  if (auto problem = rangeProblem(model, att)) return problem;
  if (auto problem = pointProblem(model, att)) return problem;
  for (const double score : {model.AttScoreLow[static_cast<std::size_t>(att)],
                             model.AttScoreHigh[static_cast<std::size_t>(att)]}) {
    const AttValueResult r = SingleAttValue(model, att, score);
    if (r.failure != ValueFailure::None) return valueFailureMessage(model, att, r.failure);
  }
  return std::nullopt;
}

std::optional<std::string> valueModelProblem(const AttributeModel& model) {
  if (auto problem = attributeCountProblem(model)) return problem;
  for (int a = 0; a < model.NumAtt; ++a) {
    if (auto problem = valueFunctionProblem(model, a)) return problem;
  }
  return std::nullopt;
}

}  // namespace tnw
