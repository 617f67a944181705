#include "graphs/ui/accessible_chart.h"

#include "graphs/ui/chart_widget.h"

// Qt
#include <QAccessibleTableCellInterface>

namespace tnw {

namespace {

// The sources of the chart areas that have one.
QHash<const QObject*, AccessibleChart::Source>& sources() {
  static QHash<const QObject*, AccessibleChart::Source> map;
  return map;
}

QAccessibleInterface* chartFactory(const QString& key, QObject* object) {
  if (key == QLatin1String(ChartWidget::staticMetaObject.className())) {
    return new AccessibleChart(static_cast<ChartWidget*>(object));
  }
  return nullptr;
}

// One cell of a chart's table.
class AccessibleChartCell : public QAccessibleInterface, public QAccessibleTableCellInterface {
 public:
  AccessibleChartCell(ChartWidget* chart, int row, int column)
      : m_chart(chart), m_row(row), m_column(column) {}

  void* interface_cast(QAccessible::InterfaceType t) override {
    if (t == QAccessible::TableCellInterface) {
      return static_cast<QAccessibleTableCellInterface*>(this);
    }
    return nullptr;
  }
  bool isValid() const override { return !m_chart.isNull(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return m_chart.isNull() ? nullptr : QAccessible::queryAccessibleInterface(m_chart.data());
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text t) const override {
    const auto* chart = static_cast<AccessibleChart*>(parent());
    if (chart == nullptr || (t != QAccessible::Name && t != QAccessible::Value)) return {};
    return chart->cellText(m_row, m_column);
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override { return {}; }
  QAccessible::Role role() const override { return QAccessible::Cell; }
  QAccessible::State state() const override {
    QAccessible::State s;
    s.readOnly = true;
    return s;
  }

  bool isSelected() const override { return false; }
  QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  int columnIndex() const override { return m_column; }
  int rowIndex() const override { return m_row; }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

 private:
  QPointer<ChartWidget> m_chart;
  int m_row;
  int m_column;
};

}  // namespace

void AccessibleChart::install() {
  static const bool installed = [] {
    QAccessible::installFactory(chartFactory);
    return true;
  }();
  (void)installed;
}

void AccessibleChart::setSource(ChartWidget* chart, Source source) {
  if (chart == nullptr) return;
  if (!sources().contains(chart)) {
    QObject::connect(chart, &QObject::destroyed, [chart] { sources().remove(chart); });
  }
  sources().insert(chart, std::move(source));
}

AccessibleChart::AccessibleChart(ChartWidget* chart)
    : QAccessibleWidget(chart, QAccessible::Table) {}

AccessibleChart::~AccessibleChart() {
  for (QAccessible::Id id : std::as_const(m_cells)) QAccessible::deleteAccessibleInterface(id);
}

const ChartData* AccessibleChart::data() const {
  const auto it = sources().constFind(object());
  if (it == sources().constEnd() || !*it) return nullptr;
  return (*it)();
}

void* AccessibleChart::interface_cast(QAccessible::InterfaceType t) {
  if (t == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(t);
}

QString AccessibleChart::text(QAccessible::Text t) const {
  const ChartData* d = data();
  switch (t) {
    case QAccessible::Name:
      if (!widget()->accessibleName().isEmpty()) return widget()->accessibleName();
      return d != nullptr && !d->title.empty() ? QString::fromStdString(d->title)
                                               : QStringLiteral("Chart");
    case QAccessible::Description:
      if (!widget()->accessibleDescription().isEmpty()) return widget()->accessibleDescription();
      return QStringLiteral("The values of the chart as a table");
    default:
      return QAccessibleWidget::text(t);
  }
}

int AccessibleChart::rowCount() const {
  const ChartData* d = data();
  return d != nullptr ? std::max(0, std::min<int>(d->n, static_cast<int>(d->data.size()))) : 0;
}

int AccessibleChart::columnCount() const {
  const ChartData* d = data();
  return d != nullptr && rowCount() > 0 ? 1 + std::clamp(d->seriesCount, 1, 3) : 0;
}

QString AccessibleChart::cellText(int row, int column) const {
  const ChartData* d = data();
  if (d == nullptr || row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) {
    return {};
  }
  const auto r = static_cast<std::size_t>(row);
  if (column == 0) {
    return r < d->names.size() ? QString::fromStdString(d->names[r]).trimmed() : QString();
  }
  return QString::number(d->data[r][static_cast<std::size_t>(column - 1)], 'f', 4);
}

QString AccessibleChart::columnDescription(int column) const {
  const ChartData* d = data();
  if (d == nullptr || column < 0 || column >= columnCount()) return {};
  if (column == 0) return QStringLiteral("Attribute");
  const auto s = static_cast<std::size_t>(column - 1);
  const auto series = static_cast<std::size_t>(columnCount() - 1);
  if (d->legend.size() >= series) {
    return s < d->legend.size() ? QString::fromStdString(d->legend[s]) : QString();
  }
  // A range drawn as one series ("Ranges") stands for the high and the low value.
  if (d->legend.size() == 2 && series == 3) {
    const QString range = QString::fromStdString(d->legend[0]);
    if (s == 0) return range + QStringLiteral(" high");
    if (s == 1) return range + QStringLiteral(" low");
    return QString::fromStdString(d->legend[1]);
  }
  return QStringLiteral("Series %1").arg(column);
}

QString AccessibleChart::rowDescription(int row) const { return cellText(row, 0); }

QAccessibleInterface* AccessibleChart::caption() const { return nullptr; }

QAccessibleInterface* AccessibleChart::summary() const { return nullptr; }

QAccessibleInterface* AccessibleChart::cellAt(int row, int column) const {
  if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) return nullptr;
  const int key = row * 4 + column;
  auto it = m_cells.constFind(key);
  if (it == m_cells.constEnd()) {
    auto* cell = new AccessibleChartCell(static_cast<ChartWidget*>(widget()), row, column);
    it = m_cells.insert(key, QAccessible::registerAccessibleInterface(cell));
  }
  return QAccessible::accessibleInterface(*it);
}

int AccessibleChart::childCount() const { return rowCount() * columnCount(); }

QAccessibleInterface* AccessibleChart::child(int index) const {
  const int columns = columnCount();
  if (columns == 0 || index < 0 || index >= childCount()) return nullptr;
  return cellAt(index / columns, index % columns);
}

int AccessibleChart::indexOfChild(const QAccessibleInterface* child) const {
  if (child == nullptr || child->role() != QAccessible::Cell) return -1;
  auto* cell = const_cast<QAccessibleInterface*>(child)->tableCellInterface();
  if (cell == nullptr) return -1;
  return cell->rowIndex() * columnCount() + cell->columnIndex();
}

}  // namespace tnw
