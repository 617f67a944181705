#include "tradeoffs/ui/tradeoffs_a_dialog.h"

#include "common/ui/kept_look_widgets.h"
#include "common/ui/wizard_buttons.h"
#include "common/ui/wrapped_label.h"
#include "graphs/ui/results_export.h"
#include "tradeoffs/core/clock_random_source.h"
#include "tradeoffs/core/saved_judgments.h"
#include "tradeoffs/core/tradeoffs_a_presenter.h"
#include "tradeoffs/ui/pc_graph_widget.h"
#include "tradeoffs/ui/pc_point_widget.h"
#include "tradeoffs/ui/score_box_filter.h"
#include "tradeoffs/ui/tradeoffs_accessibility.h"
#include "tradeoffs/ui/tradeoffs_judgment_widget.h"
#include "tradeoffs/ui/tradeoffs_printout.h"
#include "tradeoffs/ui/tradeoffs_results_widget.h"
#include "wizard/core/wizard_context.h"
#include "wizard/ui/undo_controls.h"

// Qt
#include <QAction>
#include <QButtonGroup>
#include <QDate>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableWidget>
#include <QTextEdit>
#include <QVBoxLayout>

// Std
#include <cstdint>
#include <memory>

namespace tnw::tradeoffs {

namespace {

QPushButton* namedButton(const char* name, const QString& text, QWidget* parent) {
  auto* b = new KeptPushButton(text, parent);
  b->setObjectName(QString::fromLatin1(name));
  b->setAutoDefault(false);
  return b;
}

void renderButton(QPushButton* button, const wizard::ButtonState& state) {
  const QString caption = QString::fromStdString(state.caption);
  if (button->text() != caption) button->setText(caption);
  button->setEnabled(state.enabled);
  button->setVisible(state.visible);
}

}  // namespace

TradeOffsADialog::TradeOffsADialog(WizardContext& context, UiServices& ui, TradeOffsAEvents& events,
                                   RandomSource* random, const JudgmentsFile* judgmentsFile)
    : m_context(context), m_ui(ui) {
  if (random == nullptr) {
    m_ownRandom = std::make_unique<ClockRandomSource>();
    random = m_ownRandom.get();
  }
  m_presenter = std::make_unique<TradeOffsAPresenter>(context, ui, events, *random);
  m_saved = std::make_unique<SavedJudgments>(context, ui, *m_presenter, judgmentsFile);
  setObjectName(QStringLiteral("frmTradeOffsA"));
  setWindowTitle(QString::fromLatin1(TradeOffsAPresenter::kCaption));
  buildFrame();
  connectFrame();
  connectJudgment();
  connectScores();
  connectResults();
  connectSavedJudgments();
  connectExports();

  connectUndo();
  const QString dir = hostDirectory(context);
  m_judgment->controls().framePCGraph->setDragCursor(
      PcGraphWidget::PointA,
      PcPointWidget::loadDragCursor(dir, QStringLiteral("adrag.ico"), QStringLiteral("A")));
  m_judgment->controls().framePCGraph->setDragCursor(
      PcGraphWidget::PointB,
      PcPointWidget::loadDragCursor(dir, QStringLiteral("bdrag.ico"), QStringLiteral("B")));
  m_presenter->setChangeListener([this] { render(); });
  m_presenter->Form_Load();
  m_accessibility = new TradeOffsAccessibilityQt(this, *m_presenter);
  render();
  m_judgment->controls().scoreBox[0]->setFocus();
}

TradeOffsADialog::~TradeOffsADialog() {
  // The widgets go first, while the presenter they read is still alive; it must not render into
  // them as they go.
  m_presenter->setChangeListener({});
  deleteViews();
}

const TradeOffsAPresenter& TradeOffsADialog::presenter() const { return *m_presenter; }

TradeOffsAPresenter& TradeOffsADialog::presenter() { return *m_presenter; }

QString TradeOffsADialog::hostDirectory(const WizardContext& context) {
  return QString::fromStdString(context.NorixDir);
}

void TradeOffsADialog::buildFrame() {
  m_instruction = new WrappedLabel(this);
  m_instruction->setObjectName(QStringLiteral("lblInstruction"));
  QFont f = m_instruction->font();
  f.setBold(true);
  m_instruction->setFont(f);

  m_judgment = new TradeOffsJudgmentWidget(this);
  m_results = new TradeOffsResultsWidget(this);
  m_pages = new QStackedWidget(this);
  m_pages->setObjectName(QStringLiteral("pages"));
  m_pages->addWidget(m_judgment);
  m_pages->addWidget(m_results);

  auto* line = new KeptFrame(this);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);

  m_cmdPrint = namedButton("cmdPrint", tr("&Print"), this);
  m_cmdBack = namedButton("cmdBack", tr("< &Back"), this);
  m_cmdNext = namedButton("cmdNext", tr("&Next >"), this);
  m_cmdFinish = namedButton("cmdFinish", tr("&Finish"), this);
  m_cmdCancel = namedButton("cmdCancel", tr("&Cancel"), this);
  m_cmdHelp = namedButton("cmdTNWizardHelp", tr("&Help"), this);
  QDialogButtonBox* buttons = makeWizardButtonBox(this, {.back = m_cmdBack,
                                                         .next = m_cmdNext,
                                                         .finish = m_cmdFinish,
                                                         .cancel = m_cmdCancel,
                                                         .help = m_cmdHelp,
                                                         .print = m_cmdPrint});

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(m_instruction);
  layout->addWidget(m_pages, 1);
  layout->addWidget(line);
  layout->addWidget(buttons);
}

void TradeOffsADialog::connectFrame() {
  TradeOffsAPresenter* p = m_presenter.get();
  connect(m_cmdNext, &QPushButton::clicked, this, guarded(this, [p] { p->cmdNext_Click(); }));
  connect(m_cmdBack, &QPushButton::clicked, this, guarded(this, [p] { p->cmdBack_Click(); }));
  connect(m_cmdFinish, &QPushButton::clicked, this, guarded(this, [p] { p->cmdFinish_Click(); }));
  connect(m_cmdCancel, &QPushButton::clicked, this, guarded(this, [p] { p->cmdCancel_Click(); }));
  connect(m_cmdHelp, &QPushButton::clicked, this,
          guarded(this, [p] { p->cmdTNWizardHelp_Click(); }));
  connect(m_cmdPrint, &QPushButton::clicked, this, guarded(this, [this] { print(); }));
}

// The presenter reports each change, and the dialog renders then; signals that rendering itself
// causes are not user actions and are dropped.
template <typename Action>
void TradeOffsADialog::act(Action action) {
  if (m_rendering) return;
  action();
}

void TradeOffsADialog::connectJudgment() {
  const auto& c = m_judgment->controls();
  TradeOffsAPresenter* p = m_presenter.get();
  connect(c.optPCAutomatic, &QRadioButton::clicked, this,
          guarded(this, [this, p] { act([p] { p->optPCAutomatic_Click(); }); }));
  connect(c.optPCManual, &QRadioButton::clicked, this,
          guarded(this, [this, p] { act([p] { p->optPCManual_Click(); }); }));
  connect(
      c.lstTradeOffFirstC, &QListWidget::currentRowChanged, this,
      guarded(this, [this, p](int row) { act([p, row] { p->lstTradeOffFirstC_Click(row); }); }));
  connect(
      c.lstTradeOffSecondC, &QListWidget::currentRowChanged, this,
      guarded(this, [this, p](int row) { act([p, row] { p->lstTradeOffSecondC_Click(row); }); }));
  connect(c.tsComparisonApproaches, &QTabBar::currentChanged, this,
          guarded(this, [this, p](int tab) {
            act([p, tab] { p->tsComparisonApproaches_Click(tab + 1); });
          }));
  connect(c.verbalGroup, &QButtonGroup::idClicked, this,
          guarded(this, [this, p](int id) { act([p, id] { p->optPCVerbal_Click(id); }); }));
  connect(c.cmdTradeOffClearAll, &QPushButton::clicked, this,
          guarded(this, [this, p] { act([p] { p->cmdTradeOffClearAll_Click(); }); }));
  connect(c.cmdTradeOffEnter, &QPushButton::clicked, this, guarded(this, [this, p] {
            const JudgmentPage& page = p->judgmentPage();
            const std::int16_t before = page.TradeOffNo();
            act([p] { p->cmdTradeOffEnter_Click(); });
            // A failed range check leaves the count and returns the focus to the faulty box.
            if (page.TradeOffNo() == before && page.entryError() &&
                page.controls().cmdTradeOffEnter.enabled) {
              m_judgment->focusControl(page.focus());
            }
          }));
}

void TradeOffsADialog::connectSavedJudgments() {
  const auto& c = m_judgment->controls();
  SavedJudgments* saved = m_saved.get();
  connect(c.cmdSaveJudgments, &QPushButton::clicked, this,
          guarded(this, [this, saved] { act([saved] { saved->cmdSaveJudgments_Click(); }); }));
  connect(c.cmdLoadJudgments, &QPushButton::clicked, this,
          guarded(this, [this, saved] { act([saved] { saved->cmdLoadJudgments_Click(); }); }));
}

void TradeOffsADialog::connectUndo() {
  const auto& c = m_judgment->controls();
  TradeOffsAPresenter* p = m_presenter.get();
  tnw::connectUndo(
      this, {c.cmdUndo, c.cmdRedo}, [this, p] { act([p] { p->cmdUndo_Click(); }); },
      [this, p] { act([p] { p->cmdRedo_Click(); }); });
}

void TradeOffsADialog::connectScores() {
  const auto& c = m_judgment->controls();
  TradeOffsAPresenter* p = m_presenter.get();
  m_scoreFilter = new ScoreBoxFilter(
      *p, {c.scoreBox[0], c.scoreBox[1], c.scoreBox[2], c.scoreBox[3]},
      [this, p] { m_judgment->focusControl(p->judgmentPage().focus()); }, this);
  for (int box = 0; box < 4; ++box) {
    // Edits the key filter does not see (paste, Delete) are handed over as the box's new text.
    connect(c.scoreBox[box], &QLineEdit::textEdited, this,
            guarded(this, [this, p, box](const QString& text) {
              if (m_rendering) return;
              p->judgmentPage().setScoreText(box, text.toStdString());
              // The box already shows the text; keep its caret where the user left it.
              m_judgment->keepEditedText(box, p->judgmentPage().controls().scoreBoxes[box]);
            }));
    connect(c.stepUp[box], &QAction::triggered, this, guarded(this, [this, p, box] {
              act([p, box] { p->tbScoreChanger_ButtonClick(box, true); });
            }));
    connect(c.stepDown[box], &QAction::triggered, this, guarded(this, [this, p, box] {
              act([p, box] { p->tbScoreChanger_ButtonClick(box, false); });
            }));
  }
  connect(c.framePCGraph, &PcGraphWidget::pointDragged, this,
          guarded(this, [this, p](int which, QPointF f, bool) {
            act([&] { p->dragPoint(which == PcGraphWidget::PointA, f.x(), f.y()); });
          }));
}

void TradeOffsADialog::connectResults() {
  const auto& c = m_results->controls();
  TradeOffsAPresenter* p = m_presenter.get();
  connect(c.tsTabsW, &QTabBar::currentChanged, this,
          guarded(this, [this, p](int tab) { act([p, tab] { p->tsTabsW_Click(tab + 1); }); }));
  for (int i = 0; i < 3; ++i) {
    const char* key = TradeOffsResultsWidget::chartKey(i);
    connect(c.chartButton[i], &QAction::triggered, this, guarded(this, [this, p, key] {
              act([p, key] { p->tbWeightCharts_ButtonClick(key); });
            }));
  }
}

void TradeOffsADialog::closeRequested() { m_presenter->cmdCancel_Click(); }

void TradeOffsADialog::render() {
  const TradeOffsAPresenter& p = *m_presenter;
  const QString instruction = QString::fromStdString(p.lblInstruction().caption);
  if (m_instruction->text() != instruction) m_instruction->setText(instruction);
  QWidget* page =
      p.step() == TradeOffsAPresenter::kResultsStep ? static_cast<QWidget*>(m_results) : m_judgment;
  const bool turning = m_pages->currentWidget() != page;
  // The page left goes first: showing the instruction lays the dialog out at once, and a page
  // still shown would be laid out again for a height it is no longer shown at.
  if (turning) m_pages->currentWidget()->hide();
  m_instruction->setVisible(p.step() == TradeOffsAPresenter::kJudgmentStep);
  if (turning) m_pages->setCurrentWidget(page);
  renderButton(m_cmdBack, p.cmdBack());
  renderButton(m_cmdNext, p.cmdNext());
  renderButton(m_cmdFinish, p.cmdFinish());
  renderButton(m_cmdCancel, p.cmdCancel());
  renderButton(m_cmdHelp, p.cmdTNWizardHelp());
  // There is nothing to print before the results page is filled. The state is set once, so the
  // button is not disabled and enabled again (and repainted) on every render.
  wizard::ButtonState print = p.cmdPrint();
  print.enabled = print.enabled && p.step() == TradeOffsAPresenter::kResultsStep;
  renderButton(m_cmdPrint, print);
  renderButton(m_judgment->controls().cmdUndo, p.cmdUndo());
  renderButton(m_judgment->controls().cmdRedo, p.cmdRedo());
  // Signals that rendering itself causes are not user actions (see act()).
  m_rendering = true;
  if (p.step() == TradeOffsAPresenter::kJudgmentStep) {
    m_judgment->render(p.judgmentPage(), m_context.model);
    renderButton(m_judgment->controls().cmdSaveJudgments, m_saved->cmdSaveJudgments());
    renderButton(m_judgment->controls().cmdLoadJudgments, m_saved->cmdLoadJudgments());
  } else {
    m_results->render(p.resultsPage(), p.tsTabsW(), p.worstJudgmentLines());
  }
  m_rendering = false;
  if (m_accessibility != nullptr) m_accessibility->refresh();
}

TradeOffsPrintout TradeOffsADialog::printout() const {
  const auto& c = m_results->controls();
  TradeOffsPrintout out;
  out.title = tr("%1: trade-off results").arg(windowTitle());
  out.modelFile = QFileInfo(QString::fromStdString(m_context.PathAndFileName)).fileName();
  out.method = QStringLiteral("TradeOffs");
  out.date = QDate::currentDate();
  out.weights = TradeOffsPrintout::fromGrid(*c.gridWeights);
  out.regression = TradeOffsPrintout::fromGrid(*c.gridOverallRegression);
  out.comment = c.txtComments->toPlainText();
  out.chart = c.picWeightGraph->painter();
  return out;
}

void TradeOffsADialog::printResults(QPagedPaintDevice& device) const { printout().print(device); }

void TradeOffsADialog::print() {
  ResultsPrintout::openPrintDialog(
      this, windowTitle(),
      guarded(this, [this](QPagedPaintDevice& device) { printResults(device); }));
}

void TradeOffsADialog::connectExports() {
  const auto& c = m_results->controls();
  const TradeOffsAPresenter* p = m_presenter.get();
  connect(c.cmdCopy, &QPushButton::clicked, this, guarded(this, [this, p] {
            const ChartWidget& chart = *m_results->controls().picWeightGraph;
            ResultsExport::copy(p->resultsPage().tableText(), chart.painter(),
                                ResultsExport::chartSize(chart));
          }));
  connect(c.cmdSaveCsv, &QPushButton::clicked, this, guarded(this, [this, p] {
            ResultsExport::saveCsv(m_ui, p->resultsPage().tableText(),
                                   suggestedName("_weights.csv"));
          }));
  connect(c.cmdSaveSvg, &QPushButton::clicked, this, guarded(this, [this] {
            const ChartWidget& chart = *m_results->controls().picWeightGraph;
            ResultsExport::saveSvg(m_ui, chart.painter(), ResultsExport::chartSize(chart),
                                   QString::fromUtf8(ResultsPage::kChartTitle),
                                   suggestedName("_chart.svg"));
          }));
  // Ctrl+C anywhere on the weight estimates copies as Copy does.
  auto* copy = new QShortcut(QKeySequence::Copy, c.picWeightEst);
  copy->setContext(Qt::WidgetWithChildrenShortcut);
  connect(copy, &QShortcut::activated, c.cmdCopy, &QPushButton::click);
}

QString TradeOffsADialog::suggestedName(const char* suffix) const {
  const QString base =
      QFileInfo(QString::fromStdString(m_context.PathAndFileName)).completeBaseName();
  return (base.isEmpty() ? QStringLiteral("tradeoffs") : base) + QString::fromLatin1(suffix);
}

}  // namespace tnw::tradeoffs
