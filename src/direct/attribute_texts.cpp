#include "direct/attribute_texts.h"

#include "common/number_format.h"

namespace tnw::direct {

std::string AttributeTexts::trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  const auto last = text.find_last_not_of(' ');
  return std::string(text.substr(first, last - first + 1));
}

std::string AttributeTexts::name(const AttributeModel& model, int i) {
  if (i < 0 || i >= kMaxAttributes) return {};
  return trim(model.AttName[static_cast<std::size_t>(i)]);
}

std::string AttributeTexts::definition(const AttributeModel& model, int i) {
  if (i < 0 || i >= kMaxAttributes) return {};
  return trim(model.AttDefinition[static_cast<std::size_t>(i)]);
}

bool AttributeTexts::isCost(const AttributeModel& model, int i) {
  if (i < 0 || i >= kMaxAttributes) return false;
  return leadingNumber(model.AttOrientation[static_cast<std::size_t>(i)]) != 0.0;
}

}  // namespace tnw::direct
