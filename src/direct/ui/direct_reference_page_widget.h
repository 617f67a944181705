#pragma once

#include "direct/ui/final_order_widget.h"

// Qt
#include <QWidget>

class QLabel;

namespace tnw::direct {

struct DirectResult;
class OrderingPage;
class ReferencePage;
class StatusLamps;
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
  // Marks attribute i's button as the reference and puts the indicator on it (-1: none).
  void setReference(int i);
  // Sets the indicator's fill colour.
  void setIndicatorColour(const QColor& colour);
  // Shows step 1's page: the final order (the buttons as step 0 shows them), the reference and
  // the indicator in the lamps' colour.
  void render(const ReferencePage& page, const OrderingPage& ordering, const StatusLamps& lamps,
              const DirectResult& result);
  // The first attribute button in the order (the most important group's first), or null.
  QWidget* firstButton() const;
  // The order view.
  FinalOrderWidget* orderView() const { return m_order; }
  // The indicator.
  IndicatorWidget* indicator() const { return m_indicator; }

 signals:
  // The button of attribute i was clicked (cmdAttButtons_Click).
  void attributeClicked(int i);

 private:
  FinalOrderWidget* m_order = nullptr;
  QVector<FinalOrderWidget::AttributeFace> m_faces;
  QVector<int> m_groupOf;
  IndicatorWidget* m_indicator = nullptr;
  int m_reference = -1;
};

}  // namespace tnw::direct
