#include "tradeoffs/ui/pc_graph_widget.h"

// Qt
#include <QFrame>
#include <QImage>
#include <QPainter>
#include <QtTest>

namespace tnw::tradeoffs {

namespace {

// The panel as a plain styled frame paints it, with the grid, the axes and the projections of
// the points drawn over it as lines that are not antialiased.
QImage expectedPanel(QSize size, QPointF a, QPointF b, bool enabled,
                     const QPalette& palette = QPalette()) {
  QFrame frame;
  frame.setPalette(palette);
  frame.setFrameShape(QFrame::StyledPanel);
  frame.setBackgroundRole(QPalette::Base);
  frame.setAutoFillBackground(true);
  frame.setEnabled(enabled);
  frame.resize(size);
  QImage image = frame.grab().toImage();
  QPainter p(&image);
  const QRectF r = QRectF(frame.rect()).adjusted(16, 16, -16, -16);
  p.setPen(QPen(frame.palette().color(QPalette::Mid), 1, Qt::DotLine));
  for (int i = 1; i < 4; ++i) {
    const double x = r.left() + r.width() * i / 4.0;
    const double y = r.top() + r.height() * i / 4.0;
    p.drawLine(QPointF(x, r.top()), QPointF(x, r.bottom()));
    p.drawLine(QPointF(r.left(), y), QPointF(r.right(), y));
  }
  p.setPen(QPen(frame.palette().color(QPalette::WindowText), 1.5));
  p.drawLine(r.bottomLeft(), r.topLeft());
  p.drawLine(r.bottomLeft(), r.bottomRight());
  const QPointF points[2] = {a, b};
  const QColor colours[2] = {QColor(0, 0, 160), QColor(176, 0, 0)};
  for (int i = 0; i < 2; ++i) {
    const QPointF c(r.left() + points[i].x() * r.width(), r.bottom() - points[i].y() * r.height());
    p.setPen(QPen(colours[i], 1, Qt::DashLine));
    p.drawLine(c, QPointF(c.x(), r.bottom()));
    p.drawLine(c, QPointF(r.left(), c.y()));
  }
  return image;
}

// The panel without its two point widgets, which paint themselves.
QImage panelAlone(PcGraphWidget& graph) {
  for (QWidget* child : graph.findChildren<QWidget*>()) child->hide();
  return graph.grab().toImage();
}

}  // namespace

class PcGraphWidgetTest : public QObject {
  Q_OBJECT

 private slots:
  // The kept grid is copied over the frame's background with the same pixels as lines drawn
  // over it, at each size and after the points moved.
  void thePanelIsPaintedAsLinesOverAStyledFrame() {
    PcGraphWidget graph;
    graph.resize(260, 220);
    graph.setPoint(PcGraphWidget::PointA, QPointF(0.25, 0.75));
    graph.setPoint(PcGraphWidget::PointB, QPointF(0.5, 0.5));
    QCOMPARE(panelAlone(graph),
             expectedPanel(graph.size(), QPointF(0.25, 0.75), QPointF(0.5, 0.5), true));
    graph.setPoint(PcGraphWidget::PointB, QPointF(1.0, 0.125));
    QCOMPARE(panelAlone(graph),
             expectedPanel(graph.size(), QPointF(0.25, 0.75), QPointF(1.0, 0.125), true));
    graph.resize(427, 306);
    QCOMPARE(panelAlone(graph),
             expectedPanel(graph.size(), QPointF(0.25, 0.75), QPointF(1.0, 0.125), true));
  }

  // The frame is kept with the grid: a new window colour, from which the style takes the
  // frame's, draws it again.
  void aNewWindowColourDrawsTheFrameAgain() {
    PcGraphWidget graph;
    graph.resize(240, 200);
    panelAlone(graph);
    QPalette palette = graph.palette();
    palette.setColor(QPalette::Window, QColor(90, 40, 140));
    graph.setPalette(palette);
    QCOMPARE(panelAlone(graph), expectedPanel(graph.size(), QPointF(), QPointF(), true, palette));
  }

  // A disabled panel draws its grid with the disabled colours, not the ones kept before.
  void aDisabledPanelKeepsNoEnabledColours() {
    PcGraphWidget graph;
    graph.resize(200, 180);
    panelAlone(graph);
    graph.setEnabled(false);
    QCOMPARE(panelAlone(graph), expectedPanel(graph.size(), QPointF(), QPointF(), false));
  }
};

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::PcGraphWidgetTest)
#include "pc_graph_widget_test.moc"
