#include "graphs/ui/kept_frames.h"

// Std
#include <algorithm>

namespace tnw {

namespace {

using Op = ChartOpDrawer::Op;
using Frame = KeptFrames::Frame;

// A chart widget or two show their frames again and again; a few are enough, one per chart kind.
constexpr std::size_t kMostFrames = 4;

thread_local int drawn = 0;

std::vector<Frame>& frames() {
  thread_local std::vector<Frame> kept;
  return kept;
}

// Whether two operations draw the same: their boxes follow from the rest.
bool sameDrawing(const Op& a, const Op& b) {
  return a.kind == b.kind && a.rect == b.rect && a.colour == b.colour && a.line == b.line &&
         a.pen == b.pen && a.at == b.at && a.text == b.text && a.item == b.item &&
         a.value == b.value && a.font == b.font;
}

// Whether `ops` without their values are `frame`.
bool sameFrame(const std::vector<Op>& ops, const std::vector<Op>& frame) {
  auto it = frame.begin();
  for (const Op& op : ops) {
    if (op.value) continue;
    if (it == frame.end() || !sameDrawing(*it, op)) return false;
    ++it;
  }
  return it == frame.end();
}

Frame drawFrame(const std::vector<Op>& ops, const QImage& like, QPainter::RenderHints hints,
                const QFont& font, double pixelScale) {
  Frame f{{},
          like.size(),
          like.format(),
          like.devicePixelRatio(),
          like.dotsPerMeterX(),
          like.dotsPerMeterY(),
          hints,
          font,
          pixelScale,
          QImage(like.size(), like.format())};
  for (const Op& op : ops) {
    if (!op.value) f.ops.push_back(op);
  }
  // The frame measures and lays out its texts as the image does.
  f.image.setDevicePixelRatio(f.ratio);
  f.image.setDotsPerMeterX(f.dotsX);
  f.image.setDotsPerMeterY(f.dotsY);
  // The frame's first operation covers it all (see PainterSurface::clear); what lies under it
  // does not show.
  f.image.fill(Qt::white);
  QPainter painter(&f.image);
  painter.setRenderHints(hints);
  painter.setFont(font);
  ChartOpDrawer drawer(painter, pixelScale);
  for (const Op& op : f.ops) drawer.draw(op);
  drawer.flush();
  ++drawn;
  return f;
}

}  // namespace

bool KeptFrames::valuesApart(const std::vector<Op>& ops) {
  // Going backwards, `later` holds the boxes of the frame's operations after the current one.
  QRectF later;
  for (auto it = ops.rbegin(); it != ops.rend(); ++it) {
    if (!it->value) {
      later |= it->box;
    } else if (later.intersects(it->box)) {
      return false;
    }
  }
  return true;
}

const Frame* KeptFrames::find(const std::vector<Op>& ops, const QImage& like,
                              QPainter::RenderHints hints, const QFont& font, double pixelScale) {
  for (const Frame& f : frames()) {
    if (f.size == like.size() && f.format == like.format() && f.ratio == like.devicePixelRatio() &&
        f.dotsX == like.dotsPerMeterX() && f.dotsY == like.dotsPerMeterY() && f.hints == hints &&
        f.pixelScale == pixelScale && f.font == font && sameFrame(ops, f.ops)) {
      return &f;
    }
  }
  return nullptr;
}

const Frame& KeptFrames::keep(const std::vector<Op>& ops, const QImage& like,
                              QPainter::RenderHints hints, const QFont& font, double pixelScale) {
  std::vector<Frame>& kept = frames();
  if (kept.size() >= kMostFrames) kept.erase(kept.begin());
  kept.push_back(drawFrame(ops, like, hints, font, pixelScale));
  return kept.back();
}

int KeptFrames::drawnCount() { return drawn; }

std::size_t KeptFrames::keptCount() { return frames().size(); }

void KeptFrames::clear() {
  // The images' memory goes back, not only their places in the list.
  std::vector<Frame>().swap(frames());
}

}  // namespace tnw
