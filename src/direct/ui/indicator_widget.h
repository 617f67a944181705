#pragma once

// Qt
#include <QColor>
#include <QWidget>

namespace tnw::direct {

// The indicator of step 1 (picIndicator): a small round lamp beside the reference attribute's
// button, filled with the colour it is given.
class IndicatorWidget : public QWidget {
  Q_OBJECT

 public:
  // A red indicator.
  explicit IndicatorWidget(QWidget* parent = nullptr);

  // Sets the fill colour.
  void setFillColour(const QColor& colour);
  // The fill colour.
  QColor fillColour() const { return m_colour; }

  // A small round lamp.
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor m_colour{255, 0, 0};
};

}  // namespace tnw::direct
