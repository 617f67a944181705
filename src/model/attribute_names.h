#pragma once

#include "model/attribute_model.h"

// Std
#include <string>
#include <string_view>

namespace tnw::model {

// The text without leading and trailing blanks (other white space is kept).
std::string trimmed(std::string_view text);
// The trimmed name of attribute i ("" outside 0..kMaxAttributes - 1).
std::string attributeName(const AttributeModel& model, int i);
// The trimmed definition of attribute i ("" outside 0..kMaxAttributes - 1).
std::string attributeDefinition(const AttributeModel& model, int i);

}  // namespace tnw::model
