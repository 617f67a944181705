// The exports of frmDirectA's results step: Copy, Save as CSV, Save chart as SVG and Print,
// the part of DirectADialog that hands the results page to the shared export and print code.
#include "common/ui/accessibility.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct/ui/direct_results_page_widget.h"
#include "graphs/ui/accessible_chart.h"
#include "graphs/ui/chart_widget.h"
#include "graphs/ui/results_export.h"

// Qt
#include <QDate>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>

namespace tnw::direct {

void DirectADialog::setUpChart() {
  // The weight chart is read out as a table of its data and takes the focus, as the trade-off
  // dialog's chart does.
  ChartWidget* chart = m_resultsPage->chart();
  AccessibleChart::install();
  chart->setFocusPolicy(Qt::StrongFocus);
  FocusRingQt::attach(chart);
  AccessibleChart::setSource(chart, [this] { return &m_presenter.results().chart(); });
}

void DirectADialog::connectExports() {
  const DirectResultsPageWidget* page = m_resultsPage;
  connect(page->copyButton(), &QPushButton::clicked, this, guarded(this, [this] {
            ResultsExport::copy(m_presenter.results().tableText(),
                                m_resultsPage->chart()->painter(),
                                ResultsExport::chartSize(*m_resultsPage->chart()));
          }));
  connect(page->saveCsvButton(), &QPushButton::clicked, this, guarded(this, [this] {
            ResultsExport::saveCsv(m_ui, m_presenter.results().tableText(),
                                   suggestedName("_weights.csv"));
          }));
  connect(page->saveSvgButton(), &QPushButton::clicked, this, guarded(this, [this] {
            const ChartWidget& chart = *m_resultsPage->chart();
            ResultsExport::saveSvg(m_ui, chart.painter(), ResultsExport::chartSize(chart),
                                   QString::fromUtf8(ResultsPage::kChartTitle),
                                   suggestedName("_chart.svg"));
          }));
  // Ctrl+C anywhere on the results step copies as Copy does.
  auto* copy = new QShortcut(QKeySequence::Copy, m_resultsPage);
  copy->setContext(Qt::WidgetWithChildrenShortcut);
  connect(copy, &QShortcut::activated, page->copyButton(), &QPushButton::click);
  connect(m_cmdPrint, &QPushButton::clicked, this, guarded(this, [this] {
            ResultsPrintout::openPrintDialog(
                this, windowTitle(),
                guarded(this, [this](QPagedPaintDevice& device) { printResults(device); }));
          }));
}

QString DirectADialog::suggestedName(const char* suffix) const {
  const QString base =
      QFileInfo(QString::fromStdString(m_context.PathAndFileName)).completeBaseName();
  return (base.isEmpty() ? QStringLiteral("direct") : base) + QString::fromLatin1(suffix);
}

ResultsPrintout DirectADialog::printout() const {
  ResultsPrintout out;
  out.title = windowTitle();
  out.modelFile = QFileInfo(QString::fromStdString(m_context.PathAndFileName)).fileName();
  out.method = QStringLiteral("Direct");
  out.date = QDate::currentDate();
  out.weights = ResultsPrintout::fromGrid(*m_resultsPage->grid(), 1);
  out.extraTitle = m_resultsPage->exactTitle()->text();
  out.extra = ResultsPrintout::fromGrid(*m_resultsPage->exactGrid(), 1);
  out.chart = m_resultsPage->chart()->painter();
  return out;
}

void DirectADialog::printResults(QPagedPaintDevice& device) const { printout().print(device); }

}  // namespace tnw::direct
