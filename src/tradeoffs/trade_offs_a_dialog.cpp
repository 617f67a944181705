#include "tradeoffs/trade_offs_a_dialog.h"

#include "tradeoffs/trade_offs_judgment_widget.h"
#include "tradeoffs/trade_offs_results_widget.h"

// Qt
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tnw {

namespace {

QPushButton* namedButton(const char* name, const QString& text, QWidget* parent) {
  auto* b = new QPushButton(text, parent);
  b->setObjectName(QString::fromLatin1(name));
  b->setAutoDefault(false);
  return b;
}

}  // namespace

TradeOffsADialog::TradeOffsADialog(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmTradeOffsA"));
  setWindowTitle(QStringLiteral("Tarnel Wizard"));
  buildFrame();
}

TradeOffsADialog::~TradeOffsADialog() = default;

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
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(m_cmdPrint);
  buttons->addStretch(1);
  buttons->addWidget(m_cmdBack);
  buttons->addWidget(m_cmdNext);
  buttons->addWidget(m_cmdFinish);
  buttons->addSpacing(12);
  buttons->addWidget(m_cmdCancel);
  buttons->addWidget(m_cmdHelp);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(m_instruction);
  layout->addWidget(m_pages, 1);
  layout->addWidget(line);
  layout->addLayout(buttons);
}

}  // namespace tnw
