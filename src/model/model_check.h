#pragma once

#include "model/attribute_model.h"

// Std
#include <optional>
#include <string>

namespace tnw {

// The message for a model whose attribute count lies outside 1..31, or nothing.
std::optional<std::string> attributeCountProblem(const AttributeModel& model);

// Why the value function of attribute att (0..30) cannot be evaluated over its score range, or
// nothing: no points or more than 11, a point or a range end that is not a finite number (of
// single precision, as the score boxes hold them), a range without width, two points sharing a
// score, or a value that cannot be computed at a range end. The message names the attribute.
std::optional<std::string> valueFunctionProblem(const AttributeModel& model, int att);

// The first problem that keeps a method that evaluates value functions (the trade-off method)
// from weighing the model: the attribute count, then each attribute in turn.
std::optional<std::string> valueModelProblem(const AttributeModel& model);

}  // namespace tnw
