#include "graphs/ui/line_batches.h"

// Qt
#include <QPainter>

namespace tnw {

void LineBatches::add(const LinePen& pen, const QLineF& line, const QRectF& box) {
  // The line may join an earlier batch of its pen only if it is drawn apart from that batch and
  // the batches after it: then drawing it sooner leaves the same pixels. Apart from its own
  // batch too, as the painter draws lines that meet one after another as a path, whose joints
  // are drawn once.
  for (std::size_t i = m_used; i-- > 0;) {
    Batch& batch = m_batches[i];
    if (batch.box.intersects(box)) break;
    if (batch.pen == pen) {
      batch.lines.push_back(line);
      batch.box |= box;
      return;
    }
  }
  if (m_used == m_batches.size()) m_batches.emplace_back();
  Batch& batch = m_batches[m_used++];
  batch.pen = pen;
  batch.lines.assign(1, line);
  batch.box = box;
}

bool LineBatches::reaches(const QRectF& box) const {
  for (std::size_t i = 0; i < m_used; ++i) {
    if (m_batches[i].box.intersects(box)) return true;
  }
  return false;
}

void LineBatches::drawOn(QPainter& painter, const std::function<void(const LinePen&)>& usePen) {
  for (std::size_t i = 0; i < m_used; ++i) {
    const Batch& batch = m_batches[i];
    usePen(batch.pen);
    painter.drawLines(batch.lines.data(), static_cast<int>(batch.lines.size()));
  }
  m_used = 0;
}

}  // namespace tnw
