#include "direct/ui/status_lights_widget.h"

// Qt
#include <QHBoxLayout>
#include <QLabel>

namespace tnw::direct {

StatusLightsWidget::StatusLightsWidget(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("picJudgmentState"));
  setFrameShape(QFrame::StyledPanel);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->setSpacing(6);
  const char* texts[] = {QT_TR_NOOP("Consistent"), QT_TR_NOOP("Invalid"),
                         QT_TR_NOOP("Inconsistent")};
  for (int i = 0; i < 3; ++i) {
    auto* lamp = new QLabel(tr(texts[i]), this);
    lamp->setObjectName(QStringLiteral("lblAlarm_%1").arg(i));
    lamp->setAlignment(Qt::AlignCenter);
    lamp->setMinimumHeight(lamp->fontMetrics().height() + 10);
    // Room for the bold text of a lit lamp, so lighting it never clips its label.
    QFont bold = lamp->font();
    bold.setBold(true);
    lamp->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(lamp->text()) + 24);
    layout->addWidget(lamp, 1);
    m_lamps[static_cast<std::size_t>(i)] = lamp;
    m_colours[static_cast<std::size_t>(i)] = QColor(128, 128, 128);
    m_texts[static_cast<std::size_t>(i)] = QColor(Qt::black);
    applyStyle(i);
  }
}

void StatusLightsWidget::setLamp(int index, const QColor& colour, bool lit, const QColor& text) {
  if (index < 0 || index > 2) return;
  const auto i = static_cast<std::size_t>(index);
  if (m_colours[i] == colour && m_lit[i] == lit && m_texts[i] == text) return;
  m_colours[i] = colour;
  m_lit[i] = lit;
  m_texts[i] = text;
  applyStyle(index);
}

QColor StatusLightsWidget::textColour(int index) const {
  return (index >= 0 && index <= 2) ? m_texts[static_cast<std::size_t>(index)] : QColor();
}

QColor StatusLightsWidget::lampColour(int index) const {
  return (index >= 0 && index <= 2) ? m_colours[static_cast<std::size_t>(index)] : QColor();
}

bool StatusLightsWidget::lampLit(int index) const {
  return index >= 0 && index <= 2 && m_lit[static_cast<std::size_t>(index)];
}

QLabel* StatusLightsWidget::lamp(int index) const {
  return (index >= 0 && index <= 2) ? m_lamps[static_cast<std::size_t>(index)] : nullptr;
}

void StatusLightsWidget::applyStyle(int index) {
  const auto i = static_cast<std::size_t>(index);
  const QColor& text = m_texts[i];
  m_lamps[i]->setStyleSheet(
      QStringLiteral("QLabel { background-color: %1; color: %2; border: 1px solid #404040;"
                     " border-radius: 8px; padding: 2px 6px; font-weight: %3; }")
          .arg(m_colours[i].name(), text.name(),
               m_lit[i] ? QStringLiteral("bold") : QStringLiteral("normal")));
}

}  // namespace tnw::direct
