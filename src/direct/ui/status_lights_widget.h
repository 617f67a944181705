#pragma once

// Qt
#include <QColor>
#include <QFrame>

// Std
#include <array>

class QLabel;

namespace tnw::direct {

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
  QLabel* lamp(int index) const;

 private:
  void applyStyle(int index);

  std::array<QLabel*, 3> m_lamps{};
  std::array<QColor, 3> m_colours{};
  std::array<bool, 3> m_lit{};
  std::array<QColor, 3> m_texts{};
};

}  // namespace tnw::direct
