#include "direct/ui/status_lights_widget.h"

// Qt
#include <QHBoxLayout>
#include <QPainter>
#include <QStyleOption>

namespace tnw::direct {
namespace {

// The line around a lamp's face, and the radius of the face's corners.
const QColor kLampLine(0x40, 0x40, 0x40);
constexpr qreal kLampRadius = 8.0;

}  // namespace

StatusLamp::StatusLamp(const QString& text, QWidget* parent)
    : KeptLooks(text, parent), m_face(128, 128, 128), m_text(Qt::black) {
  // The room around the text: the line and a margin of 2 pixels above and below, 6 beside.
  setContentsMargins(7, 3, 7, 3);
  setAlignment(Qt::AlignCenter);
}

void StatusLamp::setLook(const QColor& face, bool lit, const QColor& text) {
  if (m_face == face && m_lit == lit && m_text == text) return;
  m_face = face;
  m_lit = lit;
  m_text = text;
  update();
}

void StatusLamp::paintEvent(QPaintEvent* event) {
  QStyleOption option;
  option.initFrom(this);
  KeptLookInputs in = KeptLook::commonInputs(*this, option);
  in.text = text();
  in.color = m_face;
  const QRect r = contentsRect();
  in.details = {m_lit ? 1 : 0,
                static_cast<int>(m_text.rgba()),
                static_cast<int>(alignment()),
                r.x(),
                r.y(),
                r.width(),
                r.height()};
  paintKept(event, in, [this, r] { paintLamp(r); });
}

void StatusLamp::paintLamp(const QRect& textRect) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(kLampLine, 1.0));
  p.setBrush(m_face);
  p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kLampRadius, kLampRadius);
  QFont f = font();
  f.setBold(m_lit);
  p.setFont(f);
  p.setPen(m_text);
  p.drawText(textRect, static_cast<int>(alignment()), text());
}

StatusLightsWidget::StatusLightsWidget(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("picJudgmentState"));
  setFrameShape(QFrame::StyledPanel);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->setSpacing(6);
  const char* texts[] = {QT_TR_NOOP("Consistent"), QT_TR_NOOP("Invalid"),
                         QT_TR_NOOP("Inconsistent")};
  for (int i = 0; i < 3; ++i) {
    auto* lamp = new StatusLamp(tr(texts[i]), this);
    lamp->setObjectName(QStringLiteral("lblAlarm_%1").arg(i));
    lamp->setMinimumHeight(lamp->fontMetrics().height() + 10);
    // Room for the bold text of a lit lamp, so lighting it never clips its label.
    QFont bold = lamp->font();
    bold.setBold(true);
    lamp->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(lamp->text()) + 24);
    layout->addWidget(lamp, 1);
    m_lamps[static_cast<std::size_t>(i)] = lamp;
    m_colours[static_cast<std::size_t>(i)] = QColor(128, 128, 128);
    m_texts[static_cast<std::size_t>(i)] = QColor(Qt::black);
  }
}

void StatusLightsWidget::setLamp(int index, const QColor& colour, bool lit, const QColor& text) {
  if (index < 0 || index > 2) return;
  const auto i = static_cast<std::size_t>(index);
  m_colours[i] = colour;
  m_lit[i] = lit;
  m_texts[i] = text;
  m_lamps[i]->setLook(colour, lit, text);
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

StatusLamp* StatusLightsWidget::lamp(int index) const {
  return (index >= 0 && index <= 2) ? m_lamps[static_cast<std::size_t>(index)] : nullptr;
}

}  // namespace tnw::direct
