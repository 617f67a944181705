#include "direct/core/drag_payload.h"

namespace tnw::direct {

std::string encodeDragPayload(const DragPayload& payload) {
  const char letter = payload.source == DragSource::AttributeList ? 'A' : 'B';
  return letter + std::to_string(payload.attribute);
}

std::optional<DragPayload> decodeDragPayload(std::string_view tag) {
  if (tag.empty()) return std::nullopt;
  DragPayload payload;
  if (tag.front() == 'A') {
    payload.source = DragSource::AttributeList;
  } else if (tag.front() == 'B') {
    payload.source = DragSource::PlacedAttribute;
  } else {
    return std::nullopt;
  }
  std::string_view rest = tag.substr(1);
  while (!rest.empty() && rest.front() == ' ') rest.remove_prefix(1);
  // Up to four digits: no attribute index needs more, and the value cannot overflow.
  int value = 0;
  std::size_t digits = 0;
  while (digits < rest.size() && rest[digits] >= '0' && rest[digits] <= '9') {
    if (digits == 4) return std::nullopt;
    value = value * 10 + (rest[digits] - '0');
    ++digits;
  }
  if (digits == 0) return std::nullopt;
  payload.attribute = value;
  return payload;
}

}  // namespace tnw::direct
