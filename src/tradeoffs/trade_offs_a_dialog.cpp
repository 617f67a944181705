#include "tradeoffs/trade_offs_a_dialog.h"

#include "common/wizard_buttons_qt.h"
#include "component/wizard_context.h"
#include "tradeoffs/clock_random_source.h"
#include "tradeoffs/judgment_page_binding_qt.h"
#include "tradeoffs/pc_graph_widget.h"
#include "tradeoffs/pc_point_widget.h"
#include "tradeoffs/results_page_binding_qt.h"
#include "tradeoffs/trade_offs_a_presenter.h"
#include "tradeoffs/trade_offs_judgment_widget.h"
#include "tradeoffs/trade_offs_printout_qt.h"
#include "tradeoffs/trade_offs_results_widget.h"
#include "tradeoffs/tradeoffs_accessibility_qt.h"

// Qt
#include <QDate>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTextEdit>
#include <QVBoxLayout>

// Std
#include <memory>

namespace tnw {

namespace {

QPushButton* namedButton(const char* name, const QString& text, QWidget* parent) {
  auto* b = new QPushButton(text, parent);
  b->setObjectName(QString::fromLatin1(name));
  b->setAutoDefault(false);
  return b;
}

void renderButton(QPushButton* button, const ButtonState& state) {
  const QString caption = QString::fromStdString(state.caption);
  if (button->text() != caption) button->setText(caption);
  button->setEnabled(state.enabled);
  button->setVisible(state.visible);
}

}  // namespace

TradeOffsADialog::TradeOffsADialog(WizardContext& context, UiServices& ui, TradeOffsAEvents& events,
                                   RandomSource* random)
    : m_context(context) {
  if (random == nullptr) {
    m_ownRandom = std::make_unique<ClockRandomSource>();
    random = m_ownRandom.get();
  }
  m_presenter = std::make_unique<TradeOffsAPresenter>(context, ui, events, *random);
  setObjectName(QStringLiteral("frmTradeOffsA"));
  setWindowTitle(QString::fromLatin1(TradeOffsAPresenter::kCaption));
  buildFrame();
  m_judgmentBinding = new JudgmentPageBindingQt(*m_judgment, *m_presenter, context, this);
  m_resultsBinding = new ResultsPageBindingQt(*m_results, *m_presenter, this);
  connectFrame();
  const QString dir = hostDirectory(context);
  m_judgment->controls().framePCGraph->setDragCursor(
      PcGraphWidget::PointA,
      PcPointWidget::loadDragCursor(dir, QStringLiteral("adrag.ico"), QStringLiteral("A")));
  m_judgment->controls().framePCGraph->setDragCursor(
      PcGraphWidget::PointB,
      PcPointWidget::loadDragCursor(dir, QStringLiteral("bdrag.ico"), QStringLiteral("B")));
  m_presenter->setChangedCallback([this] { render(); });
  m_presenter->Form_Load();
  m_accessibility = new TradeOffsAccessibilityQt(this, *m_presenter);
  render();
  m_judgment->controls().scoreBox[0]->setFocus();
}

TradeOffsADialog::~TradeOffsADialog() {
  // The presenter may outlive the widgets by a moment; it must not render into them.
  m_presenter->setChangedCallback({});
}

const TradeOffsAPresenter& TradeOffsADialog::presenter() const { return *m_presenter; }

TradeOffsAPresenter& TradeOffsADialog::presenter() { return *m_presenter; }

QString TradeOffsADialog::hostDirectory(const WizardContext& context) {
  return QString::fromStdString(context.NorixDir);
}

void TradeOffsADialog::buildFrame() {
  m_instruction = new QLabel(this);
  m_instruction->setObjectName(QStringLiteral("lblInstruction"));
  m_instruction->setWordWrap(true);
  QFont f = m_instruction->font();
  f.setBold(true);
  m_instruction->setFont(f);

  m_judgment = new TradeOffsJudgmentWidget(this);
  m_results = new TradeOffsResultsWidget(this);
  m_pages = new QStackedWidget(this);
  m_pages->setObjectName(QStringLiteral("pages"));
  m_pages->addWidget(m_judgment);
  m_pages->addWidget(m_results);

  auto* line = new QFrame(this);
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

void TradeOffsADialog::closeRequested() { m_presenter->cmdCancel_Click(); }

void TradeOffsADialog::render() {
  const TradeOffsAPresenter& p = *m_presenter;
  const QString instruction = QString::fromStdString(p.lblInstruction().caption);
  if (m_instruction->text() != instruction) m_instruction->setText(instruction);
  m_instruction->setVisible(p.step() == 1);
  QWidget* page = p.step() == 2 ? static_cast<QWidget*>(m_results) : m_judgment;
  if (m_pages->currentWidget() != page) m_pages->setCurrentWidget(page);
  renderButton(m_cmdBack, p.cmdBack());
  renderButton(m_cmdNext, p.cmdNext());
  renderButton(m_cmdFinish, p.cmdFinish());
  renderButton(m_cmdCancel, p.cmdCancel());
  renderButton(m_cmdHelp, p.cmdTNWizardHelp());
  // There is nothing to print before the results page is filled. The state is set once, so the
  // button is not disabled and enabled again (and repainted) on every render.
  ButtonState print = p.cmdPrint();
  print.enabled = print.enabled && p.step() == 2;
  renderButton(m_cmdPrint, print);
  if (p.step() == 1) {
    m_judgmentBinding->render();
  } else {
    m_resultsBinding->render();
  }
  if (m_accessibility != nullptr) m_accessibility->refresh();
}

TradeOffsPrintoutQt TradeOffsADialog::printout() const {
  const auto& c = m_results->controls();
  TradeOffsPrintoutQt out;
  out.title = tr("%1: trade-off results").arg(windowTitle());
  out.modelFile = QFileInfo(QString::fromStdString(m_context.PathAndFileName)).fileName();
  out.method = QStringLiteral("TradeOffs");
  out.date = QDate::currentDate();
  out.weights = TradeOffsPrintoutQt::fromGrid(*c.gridWeights);
  out.regression = TradeOffsPrintoutQt::fromGrid(*c.gridOverallRegression);
  out.comment = c.txtComments->toPlainText();
  out.chart = c.picWeightGraph->painter();
  return out;
}

void TradeOffsADialog::printResults(QPagedPaintDevice& device) const { printout().print(device); }

void TradeOffsADialog::print() {
  // Window-modal without a nested event loop: the print-out is made when the dialog is accepted.
  // The dialog deletes itself when it closes, or goes with this dialog; its printer lives as long
  // as the connection that prints, which ends with the print dialog.
  auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
  printer->setDocName(windowTitle());
  auto* dialog = new QPrintDialog(printer.get(), this);
  dialog->setObjectName(QStringLiteral("dlgPrint"));
  dialog->setWindowTitle(tr("Print the results"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this,
          guarded(this, [this, printer] { printResults(*printer); }));
  dialog->open();
}

}  // namespace tnw
