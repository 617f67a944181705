#include "common/ui/wrapped_label.h"

namespace tnw {

namespace {

// A layout asks for a few widths (the width given, the size hint's, the minimum's); past these
// the oldest answer goes.
constexpr std::size_t kMostWidths = 8;

}  // namespace

WrappedLabel::WrappedLabel(const QString& text, QWidget* parent) : KeptTextLabel(text, parent) {
  setWordWrap(true);
}

WrappedLabel::WrappedLabel(QWidget* parent) : KeptTextLabel(parent) { setWordWrap(true); }

bool WrappedLabel::Shape::operator==(const Shape& other) const {
  return wrapped == other.wrapped && frameWidth == other.frameWidth && margin == other.margin &&
         indent == other.indent && alignment == other.alignment && format == other.format &&
         margins == other.margins && text == other.text && font == other.font;
}

WrappedLabel::Shape WrappedLabel::shape() const {
  return {text(),
          font(),
          contentsMargins(),
          frameWidth(),
          margin(),
          indent(),
          static_cast<int>(alignment()),
          static_cast<int>(textFormat()),
          wordWrap()};
}

int WrappedLabel::heightForWidth(int width) const {
  Shape now = shape();
  if (!(now == m_shape)) {
    m_shape = std::move(now);
    m_heights.clear();
  }
  for (const auto& [w, h] : m_heights) {
    if (w == width) return h;
  }
  ++m_measured;
  const int height = QLabel::heightForWidth(width);
  if (m_heights.size() >= kMostWidths) m_heights.erase(m_heights.begin());
  m_heights.emplace_back(width, height);
  return height;
}

}  // namespace tnw

// The meta-object code is compiled here, beside the class's own, so that it is laid out with
// the code that shows the first dialog (component/startup_code.ld).
#include "moc_wrapped_label.cpp"
