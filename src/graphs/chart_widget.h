#pragma once

// Qt
#include <QWidget>

// Std
#include <functional>

class QPainter;

namespace tnw {

// A picture area that shows one chart. The chart is given as a drawing routine that paints
// into a rectangle; the widget calls it from paintEvent, so the chart follows every resize.
class ChartWidget : public QWidget {
  Q_OBJECT

 public:
  // The routine that draws the chart onto a painter inside the given rectangle.
  using Painter = std::function<void(QPainter& painter, const QRectF& area)>;

  // Creates an empty chart area.
  explicit ChartWidget(QWidget* parent = nullptr);

  // Sets the drawing routine (an empty one clears the area) and repaints.
  void setPainter(Painter painter);
  // The drawing routine (empty when none is set).
  const Painter& painter() const { return m_painter; }
  // Whether a chart is set.
  bool hasChart() const { return static_cast<bool>(m_painter); }
  // How many times the chart has been painted (for tests and benchmarks).
  int paintCount() const { return m_paintCount; }

  // A size in which the chart's texts stay readable.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Painter m_painter;
  int m_paintCount = 0;
};

}  // namespace tnw
