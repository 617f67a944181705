#pragma once

#include "graphs/core/chart_data.h"

// Qt
#include <QAccessibleWidget>
#include <QHash>

// Std
#include <functional>

namespace tnw {

class ChartWidget;

// A chart area for assistive tools: a table of the plotted values, one row per item (the
// attribute's name, then one column per series, headed by the legend's texts). The chart's
// data come from a source set with setSource; without one the table is empty.
class AccessibleChart : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  // Hands out the data the chart draws now (null when it draws none).
  using Source = std::function<const ChartData*()>;

  // The interface of a chart area.
  explicit AccessibleChart(ChartWidget* chart);
  // Releases the cells handed out.
  ~AccessibleChart() override;

  // Tells where the data of a chart area come from; the source goes with the widget.
  static void setSource(ChartWidget* chart, Source source);
  // Registers the interface with Qt's accessibility (once per process).
  static void install();

  // The table interface besides the widget's own.
  void* interface_cast(QAccessible::InterfaceType t) override;
  // The chart's title as the description, and name.
  QString text(QAccessible::Text t) const override;
  // The cells are the children, row by row.
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

  // QAccessibleTableInterface: the plotted values, read only, nothing selectable.
  QAccessibleInterface* caption() const override;
  QAccessibleInterface* summary() const override;
  QString columnDescription(int column) const override;
  QString rowDescription(int row) const override;
  int columnCount() const override;
  int rowCount() const override;
  QAccessibleInterface* cellAt(int row, int column) const override;
  int selectedCellCount() const override { return 0; }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  QList<QAccessibleInterface*> selectedCells() const override { return {}; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

  // The text of a cell (row and column from 0).
  QString cellText(int row, int column) const;

 private:
  const ChartData* data() const;

  mutable QHash<int, QAccessible::Id> m_cells;
};

}  // namespace tnw
