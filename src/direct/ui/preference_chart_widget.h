#pragma once

// Qt
#include <QWidget>

class QLabel;

namespace tnw {
class ElidedLabelWidget;
}  // namespace tnw

namespace tnw::direct {

class ConeAreaWidget;

// The judgment chart (picPCGraph): the square cone area with the target's name above it (the
// vertical axis, lblChartTarAtt) and the reference's name below it (the horizontal axis,
// lblChartRefAtt). The square takes the largest side the widget allows, centred.
class PreferenceChartWidget : public QWidget {
  Q_OBJECT

 public:
  // The chart with an empty cone area and empty axis names.
  explicit PreferenceChartWidget(QWidget* parent = nullptr);

  // The cone area (picTradeOffsRange).
  ConeAreaWidget* coneArea() const { return m_cone; }
  // The vertical axis name (lblChartTarAtt) and the horizontal one (lblChartRefAtt).
  ElidedLabelWidget* targetAxis() const { return m_target; }
  ElidedLabelWidget* referenceAxis() const { return m_reference; }

  // Room for the cone area and a line of text above and below it.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  ConeAreaWidget* m_cone = nullptr;
  ElidedLabelWidget* m_target = nullptr;
  ElidedLabelWidget* m_reference = nullptr;
};

}  // namespace tnw::direct
