#include "direct/direct_results_page_widget.h"

// Qt
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tnw {

DirectResultsPageWidget::DirectResultsPageWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picStep3"));
  auto* caption = new QLabel(tr("Weights of the attributes derived from your judgments:"), this);
  caption->setWordWrap(true);
  m_grid = new QTableWidget(this);
  m_grid->setObjectName(QStringLiteral("gridTN"));
  m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_grid->setAlternatingRowColors(true);
  m_grid->verticalHeader()->hide();
  m_grid->horizontalHeader()->setStretchLastSection(true);
  m_grid->setWordWrap(false);
  caption->setBuddy(m_grid);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(caption);
  layout->addWidget(m_grid, 1);
}

void DirectResultsPageWidget::setTable(const QStringList& headers,
                                       const QVector<QStringList>& rows) {
  m_grid->clear();
  m_grid->setColumnCount(static_cast<int>(headers.size()));
  m_grid->setHorizontalHeaderLabels(headers);
  m_grid->setRowCount(static_cast<int>(rows.size()));
  for (int r = 0; r < rows.size(); ++r) {
    for (int c = 0; c < rows[r].size() && c < headers.size(); ++c) {
      auto* item = new QTableWidgetItem(rows[r][c]);
      // Numbers line up on the right; the name reads from the left.
      item->setTextAlignment(c == 1 ? (Qt::AlignLeft | Qt::AlignVCenter)
                                    : (Qt::AlignRight | Qt::AlignVCenter));
      m_grid->setItem(r, c, item);
    }
  }
  m_grid->resizeColumnsToContents();
  // Column widths follow the texts, with room for the header's bold font and some air.
  for (int c = 0; c < m_grid->columnCount(); ++c) {
    m_grid->setColumnWidth(c, m_grid->columnWidth(c) + 16);
  }
}

}  // namespace tnw
