#pragma once

#include "model/attribute_model.h"

// Std
#include <string>

namespace tnw::direct {

// Text helpers over the attribute model shared by the direct method's pages.
class AttributeTexts {
 public:
  // The trimmed name of attribute i ("" outside 0..30).
  static std::string name(const AttributeModel& model, int i);
  // The trimmed definition of attribute i.
  static std::string definition(const AttributeModel& model, int i);
  // Whether attribute i is cost-oriented: the leading number of its orientation is non-zero.
  static bool isCost(const AttributeModel& model, int i);
};

}  // namespace tnw::direct
