#pragma once

// Qt
#include <QStringList>
#include <QVector>
#include <QWidget>

class QTableWidget;

namespace tnw {

class ResultsGrid;

// Step 3 of the direct method: the results grid gridTN with one row per attribute.
class DirectResultsPageWidget : public QWidget {
  Q_OBJECT

 public:
  // An empty grid.
  explicit DirectResultsPageWidget(QWidget* parent = nullptr);

  // Fills the grid: the header texts and one row of texts per attribute.
  void setTable(const QStringList& headers, const QVector<QStringList>& rows);
  // Shows the results grid: row 0 of the grid is the header row.
  void render(const ResultsGrid& grid);
  // The grid.
  QTableWidget* grid() const { return m_grid; }

 private:
  void applyColumnWidths();

  QTableWidget* m_grid = nullptr;
  int m_shownRows = -1;
  QString m_signature;
};

}  // namespace tnw
