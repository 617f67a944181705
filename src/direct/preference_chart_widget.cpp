#include "direct/preference_chart_widget.h"

#include "direct/cone_area_widget.h"

// Qt
#include <QLabel>

// Std
#include <algorithm>

namespace tnw {

PreferenceChartWidget::PreferenceChartWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picPCGraph"));
  m_cone = new ConeAreaWidget(this);
  m_target = new QLabel(this);
  m_target->setObjectName(QStringLiteral("lblChartTarAtt"));
  m_target->setToolTip(tr("Vertical axis: the weight of the target attribute (Wj)"));
  m_reference = new QLabel(this);
  m_reference->setObjectName(QStringLiteral("lblChartRefAtt"));
  m_reference->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_reference->setToolTip(tr("Horizontal axis: the weight of the reference attribute (Wr)"));
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
  m_target->setGeometry(left, top - line, side, line);
  m_cone->setGeometry(left, top, side, side);
  m_reference->setGeometry(left, top + side, side, line);
}

}  // namespace tnw
