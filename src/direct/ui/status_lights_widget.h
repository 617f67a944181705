#pragma once

#include "common/ui/kept_look.h"

// Qt
#include <QColor>
#include <QFrame>
#include <QLabel>

// Std
#include <array>

namespace tnw::direct {

// One lamp of the judgment status: its label centred on a rounded face of the lamp's colour
// inside a dark line, the text bold while the lamp is lit. It draws itself (the face, the line
// and the text are all it shows) and keeps its last looks (see KeptLook), so a page shown again,
// or a lamp blinking between two colours, copies its pixels instead of drawing them.
class StatusLamp : public KeptLooks<QLabel> {
 public:
  // A grey lamp with a black label.
  StatusLamp(const QString& text, QWidget* parent = nullptr);

  // Shows the face colour, whether the lamp is lit, and the text colour.
  void setLook(const QColor& face, bool lit, const QColor& text);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // Draws the face, the line and the text, the text in textRect.
  void paintLamp(const QRect& textRect);

  QColor m_face;
  bool m_lit = false;
  QColor m_text;
};

// The judgment-status frame (picJudgmentState): three lamps labelled "Consistent", "Invalid" and
// "Inconsistent" (lblAlarm, indices 0 to 2). It only shows the colours it is given.
class StatusLightsWidget : public QFrame {
  Q_OBJECT

 public:
  // Three grey lamps with black labels.
  explicit StatusLightsWidget(QWidget* parent = nullptr);

  // Colours lamp index (0 to 2) and its label's text; a lit lamp's label is bold.
  void setLamp(int index, const QColor& colour, bool lit, const QColor& text);
  // The colour of lamp index's label text.
  QColor textColour(int index) const;
  // The colour lamp index shows now.
  QColor lampColour(int index) const;
  // Whether lamp index is lit.
  bool lampLit(int index) const;
  // The label of lamp index.
  StatusLamp* lamp(int index) const;

 private:
  std::array<StatusLamp*, 3> m_lamps{};
  std::array<QColor, 3> m_colours{};
  std::array<bool, 3> m_lit{};
  std::array<QColor, 3> m_texts{};
};

}  // namespace tnw::direct
