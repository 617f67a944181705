#pragma once

#include "direct/core/exact_weight_bounds.h"

// Qt
#include <QStringList>
#include <QVector>
#include <QWidget>

class QLabel;
class QTableWidget;

namespace tnw {
struct AttributeModel;
}  // namespace tnw

namespace tnw::direct {

class ResultsGrid;

// Step 3 of the direct method: the results grid gridTN with one row per attribute, and below it
// the exact weight ranges (lblExactBounds over gridExactBounds).
class DirectResultsPageWidget : public QWidget {
  Q_OBJECT

 public:
  // An empty grid.
  explicit DirectResultsPageWidget(QWidget* parent = nullptr);

  // Fills the grid: the header texts and one row of texts per attribute.
  void setTable(const QStringList& headers, const QVector<QStringList>& rows);
  // Shows the results grid: row 0 of the grid is the header row.
  void render(const ResultsGrid& grid);
  // Shows the exact weight ranges, or why there are none.
  void renderExactBounds(const AttributeModel& model, const ExactWeightBounds::Result& bounds);
  // The grid.
  QTableWidget* grid() const { return m_grid; }
  // The exact weight ranges' title (or the reason there are none) and their grid.
  QLabel* exactTitle() const { return m_exactTitle; }
  QTableWidget* exactGrid() const { return m_exactGrid; }

 private:
  void applyColumnWidths();

  QTableWidget* m_grid = nullptr;
  QLabel* m_exactTitle = nullptr;
  QTableWidget* m_exactGrid = nullptr;
  QString m_exactSignature;
  int m_shownRows = -1;
  QString m_signature;
};

}  // namespace tnw::direct
