#pragma once

// Qt
#include <QStringList>
#include <QVector>
#include <QWidget>

class QTableWidget;

namespace tnw {

// Step 3 of the direct method: the results grid gridTN with one row per attribute.
class DirectResultsPageWidget : public QWidget {
  Q_OBJECT

 public:
  // An empty grid.
  explicit DirectResultsPageWidget(QWidget* parent = nullptr);

  // Fills the grid: the header texts and one row of texts per attribute.
  void setTable(const QStringList& headers, const QVector<QStringList>& rows);
  // The grid.
  QTableWidget* grid() const { return m_grid; }

 private:
  QTableWidget* m_grid = nullptr;
};

}  // namespace tnw
