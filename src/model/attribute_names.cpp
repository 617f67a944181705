#include "model/attribute_names.h"

namespace tnw::model {

std::string trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  const auto last = text.find_last_not_of(' ');
  return std::string(text.substr(first, last - first + 1));
}

std::string attributeName(const AttributeModel& model, int i) {
  if (i < 0 || i >= kMaxAttributes) return {};
  return trimmed(model.AttName[static_cast<std::size_t>(i)]);
}

std::string attributeDefinition(const AttributeModel& model, int i) {
  if (i < 0 || i >= kMaxAttributes) return {};
  return trimmed(model.AttDefinition[static_cast<std::size_t>(i)]);
}

}  // namespace tnw::model
