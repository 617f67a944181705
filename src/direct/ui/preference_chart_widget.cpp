#include "direct/ui/preference_chart_widget.h"

#include "direct/ui/cone_area_widget.h"
#include "common/ui/elided_label_widget.h"

// Qt
#include <QLabel>

// Std
#include <algorithm>

namespace tnw::direct {

PreferenceChartWidget::PreferenceChartWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picPCGraph"));
  m_cone = new ConeAreaWidget(this);
  // A name longer than the chart is wide is shortened with an ellipsis; the tooltip has it whole.
  m_target = new ElidedLabelWidget(QString(), this);
  m_target->setObjectName(QStringLiteral("lblChartTarAtt"));
  m_target->setToolTipHeading(tr("Vertical axis: the weight of the target attribute (Wj)"));
  m_reference = new ElidedLabelWidget(QString(), this);
  m_reference->setObjectName(QStringLiteral("lblChartRefAtt"));
  m_reference->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_reference->setToolTipHeading(tr("Horizontal axis: the weight of the reference attribute (Wr)"));
}

QSize PreferenceChartWidget::sizeHint() const {
  const int line = fontMetrics().height() + 6;
  const QSize cone = m_cone->sizeHint();
  return {cone.width() + 12, cone.height() + 2 * line + 12};
}

QSize PreferenceChartWidget::minimumSizeHint() const {
  const int line = fontMetrics().height() + 6;
  const QSize cone = m_cone->minimumSizeHint();
  return {cone.width() + 12, cone.height() + 2 * line + 12};
}

void PreferenceChartWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int margin = 6;
  const int line = fontMetrics().height() + 6;
  const int side = std::max(10, std::min(width() - 2 * margin, height() - 2 * line - 2 * margin));
  const int left = (width() - side) / 2;
  const int top = (height() - side - 2 * line) / 2 + line;
  // The names may use the whole width beside the square: the target's starts at the square's
  // left edge, the reference's ends at its right edge.
  m_target->setGeometry(left, top - line, std::max(side, width() - left - margin), line);
  m_cone->setGeometry(left, top, side, side);
  m_reference->setGeometry(margin, top + side, left + side - margin, line);
}

}  // namespace tnw::direct
