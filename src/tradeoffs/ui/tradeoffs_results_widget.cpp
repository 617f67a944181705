#include "tradeoffs/ui/tradeoffs_results_widget.h"

#include "common/ui/kept_look_widgets.h"
#include "common/ui/wrapped_label.h"
#include "graphs/ui/chart_widget.h"
#include "graphs/ui/results_export.h"
#include "tradeoffs/core/leave_one_out.h"
#include "tradeoffs/ui/item_text_delegate.h"

// Qt
#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QVBoxLayout>

namespace tnw::tradeoffs {

namespace {

const char* const kChartKeys[3] = {"WeightBars", "HLCa", "HLCb"};
const char* const kChartTips[3] = {"Vertical weight bars", "High-low-close chart, first kind",
                                   "High-low-close chart, second kind"};

// A small picture of each chart kind for its toolbar button, drawn so no image files are needed.
QIcon chartIcon(int kind) {
  QPixmap pm(20, 20);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  p.setPen(QPen(Qt::black, 1));
  p.drawLine(2, 2, 2, 18);
  p.drawLine(2, 18, 18, 18);
  const int xs[3] = {6, 11, 16};
  const int lows[3] = {12, 7, 10};
  const int highs[3] = {6, 3, 4};
  for (int i = 0; i < 3; ++i) {
    if (kind == 0) {
      p.fillRect(xs[i] - 2, highs[i] + 2, 4, 18 - highs[i] - 2, QColor(0, 0, 255));
      continue;
    }
    if (kind == 1) {
      p.setPen(QPen(Qt::black, 1));
      p.drawLine(xs[i], highs[i], xs[i], lows[i]);
    }
    p.setPen(QPen(kind == 1 ? QColor(255, 0, 255) : QColor(0, 0, 255), 1));
    p.drawLine(xs[i] - 2, highs[i], xs[i] + 2, highs[i]);
    p.setPen(QPen(kind == 1 ? QColor(0, 0, 255) : QColor(0, 160, 0), 1));
    p.drawLine(xs[i] - 2, lows[i], xs[i] + 2, lows[i]);
    p.setPen(QPen(QColor(255, 0, 0), 2));
    p.drawLine(xs[i] - 2, (highs[i] + lows[i]) / 2, xs[i] + 2, (highs[i] + lows[i]) / 2);
  }
  return QIcon(pm);
}

// Takes the Hide event from a header's viewport while the header's view is being hidden: the
// header would have the view lay its headers and margins out again, measuring the headings, for a
// view no one sees. The Show event of the view's next showing lays them out.
class HiddenViewHeaderFilter : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Hide || !watched->isWidgetType()) return false;
    const QWidget* header = static_cast<QWidget*>(watched)->parentWidget();
    const QWidget* view = header != nullptr ? header->parentWidget() : nullptr;
    return view != nullptr && !view->isVisible();
  }
};

QTableWidget* makeGrid(const char* name, const QStringList& headings, QWidget* parent) {
  auto* grid = new QTableWidget(0, static_cast<int>(headings.size()), parent);
  grid->setObjectName(QString::fromLatin1(name));
  grid->setItemDelegate(new ItemTextDelegate(grid, true));
  grid->setShowGrid(false);
  grid->setHorizontalHeaderLabels(headings);
  grid->verticalHeader()->setVisible(false);
  grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid->setSelectionMode(QAbstractItemView::NoSelection);
  grid->setAlternatingRowColors(true);
  // A name longer than its cell ends in an ellipsis on its one line (its tooltip has it whole);
  // wrapped, it ran over the cell's borders.
  grid->setWordWrap(false);
  grid->setTextElideMode(Qt::ElideRight);
  grid->horizontalHeader()->setHighlightSections(false);
  // The number columns take their width when the grid is filled (ResizeToContents would measure
  // every cell each time the grid is shown); the names take the rest.
  grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  grid->horizontalHeader()->setMinimumSectionSize(
      grid->fontMetrics().horizontalAdvance(QStringLiteral("0.0000")) + 16);
  grid->horizontalHeader()->viewport()->installEventFilter(new HiddenViewHeaderFilter(grid));
  return grid;
}

}  // namespace

const char* TradeOffsResultsWidget::chartKey(int button) { return kChartKeys[button % 3]; }

TradeOffsResultsWidget::TradeOffsResultsWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("pageResults"));
  m_c.tsTabsW = new KeptTabBar(this);
  m_c.tsTabsW->setObjectName(QStringLiteral("tsTabsW"));
  m_c.tsTabsW->addTab(tr("Weight Estimates"));
  m_c.tsTabsW->addTab(tr("Regression Status"));
  m_c.tsTabsW->setDrawBase(false);
  m_c.tsTabsW->setExpanding(false);
  m_c.panels = new QStackedWidget(this);
  m_c.panels->setObjectName(QStringLiteral("panelsW"));
  m_c.panels->addWidget(buildWeightEst());
  m_c.panels->addWidget(buildRegStatus());
  auto* frame = new QFrame(this);
  frame->setFrameShape(QFrame::StyledPanel);
  auto* frameLayout = new QVBoxLayout(frame);
  frameLayout->setContentsMargins(6, 6, 6, 6);
  frameLayout->addWidget(m_c.panels);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(m_c.tsTabsW);
  layout->addWidget(frame, 1);
}

QToolBar* TradeOffsResultsWidget::buildChartToolbar(QWidget* parent) {
  auto* bar = new QToolBar(parent);
  bar->setObjectName(QStringLiteral("tbWeightCharts"));
  bar->setIconSize(QSize(20, 20));
  bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
  auto* group = new QActionGroup(bar);
  for (int i = 0; i < 3; ++i) {
    QAction* a = bar->addAction(chartIcon(i), tr(kChartTips[i]));
    a->setObjectName(QString::fromLatin1(kChartKeys[i]));
    a->setData(QString::fromLatin1(kChartKeys[i]));
    a->setCheckable(true);
    group->addAction(a);
    m_c.chartButton[i] = a;
  }
  m_c.tbWeightCharts = bar;
  return bar;
}

QLayout* TradeOffsResultsWidget::buildExportRow(QWidget* parent) {
  const auto button = [parent](const char* name, const QString& tip) {
    auto* b = new QPushButton(parent);
    b->setObjectName(QString::fromLatin1(name));
    b->setAutoDefault(false);
    b->setToolTip(tip);
    return b;
  };
  m_c.cmdCopy = button("cmdCopy", tr("Copies the weights grid as text and the chart as a picture"));
  m_c.cmdSaveCsv = button("cmdSaveCsv", tr("Saves the weights grid as comma-separated values"));
  m_c.cmdSaveSvg =
      button("cmdSaveSvg", ResultsExport::svgAvailable() ? tr("Saves the chart as an SVG picture")
                                                         : ResultsExport::svgUnavailableTip());
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(m_c.cmdCopy);
  row->addWidget(m_c.cmdSaveCsv);
  row->addWidget(m_c.cmdSaveSvg);
  row->addStretch(1);
  return row;
}

QWidget* TradeOffsResultsWidget::buildWeightEst() {
  auto* panel = new QWidget(this);
  panel->setObjectName(QStringLiteral("picWeightEst"));
  m_c.picWeightEst = panel;
  m_c.gridWeights = makeGrid(
      "gridWeights", {tr("Attributes"), tr("Weights"), tr("Est.High"), tr("Est.Low")}, panel);
  m_c.picWeightGraph = new ChartWidget(panel);
  m_c.picWeightGraph->setObjectName(QStringLiteral("picWeightGraph"));
  auto* chartColumn = new QVBoxLayout;
  chartColumn->setSpacing(2);
  chartColumn->addWidget(buildChartToolbar(panel));
  chartColumn->addWidget(m_c.picWeightGraph, 1);
  auto* columns = new QHBoxLayout;
  columns->addWidget(m_c.gridWeights, 3);
  columns->addLayout(chartColumn, 5);
  auto* layout = new QVBoxLayout(panel);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(columns, 1);
  layout->addLayout(buildExportRow(panel));
  return panel;
}

QWidget* TradeOffsResultsWidget::buildRegStatus() {
  auto* panel = new QWidget(this);
  panel->setObjectName(QStringLiteral("picRegStatus"));
  m_c.picRegStatus = panel;
  m_c.gridOverallRegression = makeGrid("gridOverallRegression", {tr("Items"), tr("Values")}, panel);
  m_c.txtComments = new QTextEdit(panel);
  m_c.txtComments->setObjectName(QStringLiteral("txtComments"));
  m_c.txtComments->setReadOnly(true);
  m_c.txtComments->setTabChangesFocus(true);
  auto* caption = new QLabel(tr("C&omments:"), panel);
  caption->setObjectName(QStringLiteral("lblComments"));
  caption->setBuddy(m_c.txtComments);
  auto* right = new QVBoxLayout;
  right->addWidget(caption);
  right->addWidget(m_c.txtComments, 1);
  m_c.lstWorstJudgments = new QListWidget(panel);
  m_c.lstWorstJudgments->setObjectName(QStringLiteral("lstWorstJudgments"));
  m_c.lstWorstJudgments->setWordWrap(true);
  // The list's wrapped lines are measured and painted once per text, not each time the tab is
  // shown.
  m_c.lstWorstJudgments->setItemDelegate(new ItemTextDelegate(m_c.lstWorstJudgments));
  // The caption's first letter is its mnemonic, as "C&omments:" has one.
  m_c.lblWorstJudgments =
      new WrappedLabel(QLatin1Char('&') + QString::fromUtf8(LeaveOneOut::kCaption), panel);
  m_c.lblWorstJudgments->setObjectName(QStringLiteral("lblWorstJudgments"));
  m_c.lblWorstJudgments->setBuddy(m_c.lstWorstJudgments);
  right->addWidget(m_c.lblWorstJudgments);
  right->addWidget(m_c.lstWorstJudgments, 1);
  auto* layout = new QHBoxLayout(panel);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_c.gridOverallRegression, 1);
  layout->addLayout(right, 1);
  return panel;
}

}  // namespace tnw::tradeoffs
