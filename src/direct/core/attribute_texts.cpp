#include "direct/core/attribute_texts.h"

#include "common/core/number_format.h"
#include "model/attribute_names.h"

namespace tnw::direct {

std::string AttributeTexts::name(const AttributeModel& model, int i) {
  return model::attributeName(model, i);
}

std::string AttributeTexts::definition(const AttributeModel& model, int i) {
  return model::attributeDefinition(model, i);
}

bool AttributeTexts::isCost(const AttributeModel& model, int i) {
  if (i < 0 || i >= kMaxAttributes) return false;
  return leadingNumber(model.AttOrientation[static_cast<std::size_t>(i)]) != 0.0;
}

}  // namespace tnw::direct
