#pragma once

// Qt
#include <QCursor>
#include <QPixmap>
#include <QWidget>

namespace tnw::tradeoffs {

class PcGraphWidget;

// One of the two points A and B of the panel framePCGraph (shpPCA, shpPCB): a small lettered
// disc that the user drags with the mouse. It reports each position to its panel.
class PcPointWidget : public QWidget {
  Q_OBJECT

 public:
  // Creates the point with its letter ("A" or "B") and fill colour inside the panel.
  PcPointWidget(const QString& letter, const QColor& fill, PcGraphWidget* panel);

  // Sets the cursor shown while the point is being dragged.
  void setDragCursor(const QCursor& cursor);
  // The cursor shown while the point is being dragged.
  const QCursor& dragCursor() const { return m_dragCursor; }
  // Whether a drag is in progress.
  bool dragging() const { return m_dragging; }

  // The drag cursor of a point: the icon file (for example "adrag.ico") in the host's
  // directory when it can be read, otherwise a drawn cross with the point's letter.
  static QCursor loadDragCursor(const QString& hostDir, const QString& iconFile,
                                const QString& letter);

  // The diameter of the disc in pixels.
  static int diameter();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  PcGraphWidget* m_panel;
  QString m_letter;
  QColor m_fill;
  // The disc as last drawn: it is copied at every repaint of the panel.
  QPixmap m_picture;
  QCursor m_dragCursor;
  QPointF m_grabOffset;
  bool m_dragging = false;
};

}  // namespace tnw::tradeoffs
