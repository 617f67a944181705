#pragma once

// Std
#include <optional>
#include <string>
#include <string_view>

namespace tnw::direct {

// The private MIME type under which views carry the payload of a dragged attribute button.
inline constexpr const char* kDragMimeType = "application/x-tnwizard-attribute";

// Where a dragged attribute button comes from.
enum class DragSource {
  AttributeList,   // "A": an unplaced attribute of the list on the left
  PlacedAttribute  // "B": an attribute already placed in a group
};

// What a drag of an attribute button carries: its source and the attribute index (0-based).
struct DragPayload {
  DragSource source = DragSource::AttributeList;
  int attribute = 0;

  friend bool operator==(const DragPayload&, const DragPayload&) = default;
};

// The tag of a dragged button: "A" or "B" followed by the attribute index, e.g. "A3".
std::string encodeDragPayload(const DragPayload& payload);

// Reads a button's tag back; empty for any other text (other letters, no index, a negative or
// overlong number), so that foreign drops are ignored.
std::optional<DragPayload> decodeDragPayload(std::string_view tag);

}  // namespace tnw::direct
