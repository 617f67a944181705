#include "tradeoffs/ui/tradeoffs_accessibility.h"

#include "common/ui/accessibility.h"
#include "graphs/ui/accessible_chart.h"
#include "graphs/ui/chart_widget.h"
#include "tradeoffs/core/tradeoffs_a_presenter.h"
#include "tradeoffs/ui/accessible_panel.h"
#include "tradeoffs/ui/pc_graph_widget.h"
#include "tradeoffs/ui/pc_point_widget.h"

// Qt
#include <QAction>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>
#include <QWidget>

namespace tnw::tradeoffs {

namespace {

// The score boxes in the order of the step toolbars tbScoreChanger_0 to _3.
const char* const kScoreBoxes[4] = {"txtTradeOffAFirstScore", "txtTradeOffASecondScore",
                                    "txtTradeOffBFirstScore", "txtTradeOffBSecondScore"};

// The toolbar's button of an action, made a stop of the Tab chain.
void makeFocusable(QToolBar* bar, QAction* action) {
  QWidget* button = bar->widgetForAction(action);
  if (button == nullptr) return;
  button->setFocusPolicy(Qt::TabFocus);
  // The button goes by its action's name (Up, Down, or the chart's key).
  if (button->objectName().isEmpty()) button->setObjectName(action->objectName());
}

}  // namespace

TradeOffsAccessibilityQt::TradeOffsAccessibilityQt(QWidget* dialog,
                                                   const TradeOffsAPresenter& presenter)
    : QObject(dialog), m_dialog(dialog) {
  setObjectName(QStringLiteral("tradeOffsAccessibility"));
  installTradeOffAccessibleInterfaces();
  AccessibleChart::install();
  if (auto* panel = dialog->findChild<PcGraphWidget*>()) {
    new PanelKeyboardQt(panel);
    for (PcPointWidget* p : panel->findChildren<PcPointWidget*>()) FocusRingQt::attach(p);
  }
  if (auto* chart = dialog->findChild<ChartWidget*>(QStringLiteral("picWeightGraph"))) {
    chart->setFocusPolicy(Qt::StrongFocus);
    FocusRingQt::attach(chart);
    const TradeOffsAPresenter* shown = &presenter;
    AccessibleChart::setSource(chart, [shown] { return &shown->resultsPage().chart(); });
  }
  makeTablesTabbable(dialog);
  setUpStepButtons();
  setUpChartButtons();
  m_widgets = new WidgetTreeWatch(dialog);
  for (int box = 0; box < 4; ++box) {
    m_scoreBoxes[box] = m_dialog->findChild<QLineEdit*>(QString::fromLatin1(kScoreBoxes[box]));
  }
  m_scoreHeads[0] = m_dialog->findChild<QLabel*>(QStringLiteral("labScoreHead1"));
  m_scoreHeads[1] = m_dialog->findChild<QLabel*>(QStringLiteral("labScoreHead2"));
  refresh();
}

void TradeOffsAccessibilityQt::setUpStepButtons() {
  for (int box = 0; box < 4; ++box) {
    auto* bar = m_dialog->findChild<QToolBar*>(QStringLiteral("tbScoreChanger_%1").arg(box));
    auto* edit = m_dialog->findChild<QLineEdit*>(QString::fromLatin1(kScoreBoxes[box]));
    if (bar == nullptr || edit == nullptr) continue;
    for (QAction* action : bar->actions()) {
      const bool up = action->objectName() == QLatin1String("Up");
      // Up and Down step the score in its box and on the focused step button; Ctrl with them
      // does so too where a box's own key would be taken.
      action->setShortcuts({QKeySequence(up ? Qt::Key_Up : Qt::Key_Down),
                            QKeySequence(up ? Qt::CTRL | Qt::Key_Up : Qt::CTRL | Qt::Key_Down)});
      action->setShortcutContext(Qt::WidgetShortcut);
      edit->addAction(action);
      makeFocusable(bar, action);
    }
  }
}

void TradeOffsAccessibilityQt::setUpChartButtons() {
  auto* bar = m_dialog->findChild<QToolBar*>(QStringLiteral("tbWeightCharts"));
  if (bar == nullptr) return;
  int n = 0;
  for (QAction* action : bar->actions()) {
    ++n;
    const QKeySequence key(QStringLiteral("Ctrl+%1").arg(n));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WindowShortcut);
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(action->text(), key.toString(QKeySequence::NativeText)));
    makeFocusable(bar, action);
  }
}

void TradeOffsAccessibilityQt::nameScoreBoxes() {
  QString attributes[2];
  for (int i = 0; i < 2; ++i) {
    if (m_scoreHeads[i] != nullptr) attributes[i] = m_scoreHeads[i]->text().trimmed();
  }
  // The names follow the attribute heads; most renders leave the heads as they were.
  if (attributes[0] == m_namedFor[0] && attributes[1] == m_namedFor[1] && m_named) return;
  for (int box = 0; box < 4; ++box) {
    const QChar alternative = box < 2 ? QLatin1Char('A') : QLatin1Char('B');
    const QString& attribute = attributes[box % 2];
    setAccessibleText(m_scoreBoxes[box], QStringLiteral("%1, %2").arg(alternative).arg(attribute),
                      QStringLiteral("The score of alternative %1 on %2; Up and Down step it by a "
                                     "hundredth of the score range")
                          .arg(alternative)
                          .arg(attribute));
  }
  m_namedFor[0] = attributes[0];
  m_namedFor[1] = attributes[1];
  m_named = true;
}

void TradeOffsAccessibilityQt::refresh() {
  if (m_widgets->changedSinceLastLook()) describeControls();
  nameScoreBoxes();
}

void TradeOffsAccessibilityQt::describeControls() {
  describeWizardButtons(m_dialog);
  applyAccessibleTexts(
      m_dialog,
      {{"optPCAutomatic", nullptr, "The pairs of attributes follow one another by themselves"},
       {"optPCManual", nullptr, "The pair of attributes is chosen in the two lists"},
       {"lstTradeOffFirstC", nullptr, "The first attribute of the trade-off"},
       {"lstTradeOffSecondC", nullptr, "The second attribute of the trade-off"},
       {"tsComparisonApproaches", "Comparison approach",
        "Gives the judgment by scores or on a verbal scale"},
       {"cmdTradeOffClearAll", nullptr, "Starts the trade-offs again from the first"},
       {"cmdTradeOffEnter", nullptr, "Records the trade-off and shows the next one"},
       {"optPCVerbal_0", nullptr, "A is strongly preferred to B"},
       {"optPCVerbal_1", nullptr, "A is moderately preferred to B"},
       {"optPCVerbal_2", nullptr, "A is slightly preferred to B"},
       {"optPCVerbal_3", nullptr, "A and B are equally preferred"},
       {"optPCVerbal_4", nullptr, "B is slightly preferred to A"},
       {"optPCVerbal_5", nullptr, "B is moderately preferred to A"},
       {"optPCVerbal_6", nullptr, "B is strongly preferred to A"},
       {"tsTabsW", "Results views", "Shows the weight estimates or the regression status"},
       {"gridWeights", "Weight estimates", "The weight, high and low estimate of each attribute"},
       {"gridOverallRegression", "Regression figures", "The overall figures of the regression"},
       {"txtComments", "Comment", "The consistency verdict of the regression"},
       {"lstWorstJudgments", nullptr, "The judgments that fit the weights worst"}});
  describeTabs(m_dialog, "tsComparisonApproaches",
               {"The judgment by the scores of A and B", "The judgment on a verbal scale"});
  describeTabs(m_dialog, "tsTabsW",
               {"The weight estimates and the chart", "The regression's figures and comment"});
  nameControlsByBuddies(m_dialog);
}

}  // namespace tnw::tradeoffs
