#include "graphs/ui/results_export.h"

#include "common/core/ui_services.h"
#include "graphs/ui/chart_export.h"

// Qt
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>
#include <QSaveFile>

namespace tnw {

namespace {

// Where the user chose to write, or an empty string when the choice was cancelled.
QString chooseFile(UiServices& ui, const char* caption, const char* filter,
                   const QString& suggestedName) {
  return QString::fromStdString(ui.chooseSaveFile(caption, filter, suggestedName.toStdString()));
}

void reportWriteError(UiServices& ui, const QString& path) {
  ui.messageBox(ResultsExport::writeError(path).toStdString(), MessageIcon::Exclamation, "NORIX");
}

}  // namespace

bool ResultsExport::svgAvailable() {
#ifdef TNW_HAVE_QT_SVG
  return true;
#else
  return false;
#endif
}

QString ResultsExport::svgUnavailableTip() {
  return QStringLiteral("This build cannot write SVG files: its Qt has no Svg module.");
}

QSize ResultsExport::chartSize(const ChartWidget& chart) {
  const QSize size = chart.size();
  return size.width() >= 100 && size.height() >= 100 ? size : kChartSize;
}

QString ResultsExport::writeError(const QString& path) {
  return QStringLiteral("The file \"%1\" could not be written.")
      .arg(QDir::toNativeSeparators(path));
}

QMimeData* ResultsExport::clipboardData(const TextTable& table, const ChartWidget::Painter& chart,
                                        QSize size) {
  auto* data = new QMimeData;
  data->setText(QString::fromStdString(TableText::toTabSeparated(table)));
  if (chart) data->setImageData(ChartExport::toImage(chart, size));
  return data;
}

void ResultsExport::copy(const TextTable& table, const ChartWidget::Painter& chart, QSize size) {
  if (QClipboard* clipboard = QGuiApplication::clipboard()) {
    clipboard->setMimeData(clipboardData(table, chart, size));
  }
}

bool ResultsExport::saveCsv(UiServices& ui, const TextTable& table, const QString& suggestedName) {
  const QString path = chooseFile(ui, "Save the weights as CSV", kCsvFilter, suggestedName);
  if (path.isEmpty()) return false;
  // Written whole or not at all: an old file is replaced only when the new one is complete.
  const std::string csv = TableText::toCsv(table);
  QSaveFile file(path);
  const bool written =
      file.open(QIODevice::WriteOnly) &&
      file.write(csv.data(), static_cast<qint64>(csv.size())) == static_cast<qint64>(csv.size()) &&
      file.commit();
  if (!written) {
    file.cancelWriting();
    reportWriteError(ui, path);
  }
  return written;
}

bool ResultsExport::saveSvg(UiServices& ui, const ChartWidget::Painter& chart, QSize size,
                            const QString& title, const QString& suggestedName) {
  const QString path = chooseFile(ui, "Save the chart as SVG", kSvgFilter, suggestedName);
  if (path.isEmpty()) return false;
  const bool written = ChartExport::toSvg(chart, path, size, title);
  if (!written) reportWriteError(ui, path);
  return written;
}

}  // namespace tnw
