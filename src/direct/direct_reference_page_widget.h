#pragma once

#include "direct/final_order_widget.h"

// Qt
#include <QWidget>

class QLabel;

namespace tnw {

class IndicatorWidget;

// Step 1 of the direct method: the final importance order with one button per attribute, the
// reference attribute's name and the blinking indicator beside its button.
class DirectReferencePageWidget : public QWidget {
  Q_OBJECT

 public:
  // An empty page.
  explicit DirectReferencePageWidget(QWidget* parent = nullptr);

  // Builds the attribute buttons (cmdAttButtons).
  void setAttributes(const QVector<FinalOrderWidget::AttributeFace>& attributes);
  // Lays the buttons out in the final order (DisplayFinalOrder).
  void setOrder(int groupCount, const QVector<int>& groupOf);
  // Shows attribute i as the reference (-1: none chosen) with its name in lblRefAtt.
  void setReference(int i, const QString& name);
  // Sets the indicator's fill colour.
  void setIndicatorColour(const QColor& colour);
  // The order view.
  FinalOrderWidget* orderView() const { return m_order; }
  // The indicator.
  IndicatorWidget* indicator() const { return m_indicator; }

 signals:
  // The button of attribute i was clicked (cmdAttButtons_Click).
  void attributeClicked(int i);

 private:
  FinalOrderWidget* m_order = nullptr;
  QLabel* m_refName = nullptr;
  IndicatorWidget* m_indicator = nullptr;
  int m_reference = -1;
};

}  // namespace tnw
