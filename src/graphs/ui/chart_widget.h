#pragma once

// Qt
#include <QImage>
#include <QWidget>

// Std
#include <functional>

class QPainter;

namespace tnw {

// A picture area that shows one chart. The chart is given as a drawing routine that paints
// into a rectangle. The widget keeps the picture it drew last and runs the routine again only
// when its size changes or redraw() says the chart did: showing the area again, or covering and
// uncovering it, costs a copy of the picture.
class ChartWidget : public QWidget {
  Q_OBJECT

 public:
  // The routine that draws the chart onto a painter inside the given rectangle.
  using Painter = std::function<void(QPainter& painter, const QRectF& area)>;

  // Creates an empty chart area.
  explicit ChartWidget(QWidget* parent = nullptr);
  // The last chart area to go lets the kept chart frames go (see KeptFrames).
  ~ChartWidget() override;
  ChartWidget(const ChartWidget&) = delete;
  ChartWidget& operator=(const ChartWidget&) = delete;

  // Sets the drawing routine (an empty one clears the area) and repaints.
  void setPainter(Painter painter);
  // Runs the drawing routine again at the next paint: what it draws has changed.
  void redraw();
  // The drawing routine (empty when none is set).
  const Painter& painter() const { return m_painter; }
  // Whether a chart is set.
  bool hasChart() const { return static_cast<bool>(m_painter); }
  // How many times the area has been painted (for tests and benchmarks).
  int paintCount() const { return m_paintCount; }
  // How many times the drawing routine has run for the area (for tests and benchmarks).
  int drawCount() const { return m_drawCount; }

  // A size in which the chart's texts stay readable.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Painter m_painter;
  QImage m_picture;
  bool m_stale = true;
  int m_paintCount = 0;
  int m_drawCount = 0;
};

}  // namespace tnw
