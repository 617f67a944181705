#include "selmethod/ui/selmethod_dialog.h"

#include "common/ui/accessibility.h"
#include "common/ui/wizard_buttons.h"
#include "common/ui/wrapped_label.h"

// Qt
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace tnw::selmethod {

namespace {

QPushButton* makeButton(const char* name, const char* caption, QWidget* parent) {
  auto* button = new QPushButton(QString::fromUtf8(caption), parent);
  button->setObjectName(QString::fromUtf8(name));
  button->setAutoDefault(false);
  return button;
}

QLabel* makeLabel(const char* name, const QString& caption, QWidget* parent) {
  auto* label = new QLabel(caption, parent);
  label->setObjectName(QString::fromUtf8(name));
  label->setTextFormat(Qt::PlainText);
  return label;
}

}  // namespace

SelMethodDialog::SelMethodDialog(const WizardContext& context, UiServices& ui,
                                 SelMethodEvents& events)
    : m_presenter(context, ui, events) {
  setObjectName(QStringLiteral("frmTNWSelMethod"));
  setWindowTitle(QString::fromUtf8(SelMethodPresenter::kCaption));
  QFont f = font();
  f.setFamilies(
      {QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"), f.family()});
  setFont(f);
  buildLayout();
  nameControlsByBuddies(this);
  describeWizardButtons(this);
  applyAccessibleTexts(this, {{"lstMethods", nullptr, "Next starts the method selected here"}});
  connectControls();
  render();
  m_presenter.setChangeListener([this] { render(); });
  m_presenter.Form_Load();
  adjustSize();
  setFixedSize(size());
}

void SelMethodDialog::buildLayout() {
  auto* label1 = makeLabel("Label1", QStringLiteral("Elicitation methods:"), this);
  m_lstMethods = new QListWidget(this);
  m_lstMethods->setObjectName(QStringLiteral("lstMethods"));
  m_lstMethods->setSelectionMode(QAbstractItemView::SingleSelection);
  m_lstMethods->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 12);
  // Two methods: a list a few lines high is enough, and keeps the dialog compact.
  m_lstMethods->setFixedHeight(fontMetrics().lineSpacing() * 7);
  label1->setBuddy(m_lstMethods);

  m_lblSelectedMethodName = makeLabel("lblSelectedMethodName", QString(), this);
  QFont bold = m_lblSelectedMethodName->font();
  bold.setBold(true);
  m_lblSelectedMethodName->setFont(bold);
  auto* label1b = makeLabel("Label1", QStringLiteral("Description:"), this);

  m_picDescription = new QFrame(this);
  m_picDescription->setObjectName(QStringLiteral("picDescription"));
  m_picDescription->setFrameShape(QFrame::StyledPanel);
  m_picDescription->setFrameShadow(QFrame::Sunken);
  m_picDescription->setBackgroundRole(QPalette::Base);
  m_picDescription->setAutoFillBackground(true);
  m_lblDescription = new WrappedLabel(m_picDescription);
  m_lblDescription->setObjectName(QStringLiteral("lblDescription"));
  m_lblDescription->setTextFormat(Qt::PlainText);
  m_lblDescription->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  // Room for the longest description, so that no method's text is ever clipped.
  const int textWidth = fontMetrics().averageCharWidth() * 44;
  m_lblDescription->setMinimumWidth(textWidth);
  m_lblDescription->setMinimumHeight(fontMetrics().lineSpacing() * 5);
  auto* descLayout = new QVBoxLayout(m_picDescription);
  descLayout->addWidget(m_lblDescription);

  auto* top = new QGridLayout;
  top->setHorizontalSpacing(16);
  top->addWidget(label1, 0, 0);
  top->addWidget(m_lstMethods, 1, 0, 3, 1);
  top->addWidget(m_lblSelectedMethodName, 0, 1);
  top->addWidget(label1b, 1, 1);
  top->addWidget(m_picDescription, 2, 1, 2, 1);
  top->setRowStretch(3, 1);
  top->setColumnStretch(1, 1);

  auto* frame1 = new QFrame(this);
  frame1->setObjectName(QStringLiteral("Frame1"));
  frame1->setFrameShape(QFrame::HLine);
  frame1->setFrameShadow(QFrame::Sunken);

  m_cmdBack = makeButton("cmdBack", "< &Back", this);
  m_cmdNext = makeButton("cmdNext", "&Next >", this);
  m_cmdFinish = makeButton("cmdFinish", "&Finish", this);
  m_cmdCancel = makeButton("cmdCancel", "&Cancel", this);
  m_cmdHelp = makeButton("cmdHelp", "&Help", this);
  m_cmdNext->setDefault(true);
  auto* buttons = makeWizardButtonBox(this, {.back = m_cmdBack,
                                             .next = m_cmdNext,
                                             .finish = m_cmdFinish,
                                             .cancel = m_cmdCancel,
                                             .help = m_cmdHelp});

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top, 1);
  layout->addSpacing(4);
  layout->addWidget(frame1);
  layout->addWidget(buttons);

  setTabOrder(m_lstMethods, m_cmdBack);
  setTabOrder(m_cmdBack, m_cmdNext);
  setTabOrder(m_cmdNext, m_cmdFinish);
  setTabOrder(m_cmdFinish, m_cmdCancel);
  setTabOrder(m_cmdCancel, m_cmdHelp);
  m_lstMethods->setFocus();
}

void SelMethodDialog::connectControls() {
  connect(m_lstMethods, &QListWidget::itemSelectionChanged, this,
          guarded(this, [this] { onSelectionChanged(); }));
  connect(m_cmdNext, &QPushButton::clicked, this,
          guarded(this, [this] { m_presenter.cmdNext_Click(); }));
  connect(m_cmdCancel, &QPushButton::clicked, this,
          guarded(this, [this] { m_presenter.cmdCancel_Click(); }));
  connect(m_cmdHelp, &QPushButton::clicked, this,
          guarded(this, [this] { m_presenter.cmdHelp_Click(); }));
  auto* help = new QShortcut(QKeySequence::HelpContents, this);
  connect(help, &QShortcut::activated, this,
          guarded(this, [this] { m_presenter.cmdHelp_Click(); }));
}

void SelMethodDialog::render() {
  m_rendering = true;
  const auto& methods = m_presenter.methods();
  if (m_lstMethods->count() != static_cast<int>(methods.size())) {
    m_lstMethods->clear();
    for (const std::string& m : methods) m_lstMethods->addItem(QString::fromStdString(m));
  }
  const int index = m_presenter.selectedIndex();
  if (index >= 0 && index < m_lstMethods->count()) {
    m_lstMethods->setCurrentRow(index);
  } else {
    m_lstMethods->clearSelection();
  }
  m_lblSelectedMethodName->setText(QString::fromStdString(m_presenter.selectedMethodName()));
  m_lblDescription->setText(QString::fromStdString(m_presenter.description()));
  m_cmdBack->setEnabled(m_presenter.cmdBack().enabled);
  m_cmdFinish->setEnabled(m_presenter.cmdFinish().enabled);
  m_rendering = false;
}

void SelMethodDialog::onSelectionChanged() {
  if (m_rendering) return;
  const QList<QListWidgetItem*> selected = m_lstMethods->selectedItems();
  m_presenter.lstMethods_Click(selected.isEmpty() ? -1 : m_lstMethods->row(selected.front()));
}

void SelMethodDialog::closeRequested() { m_presenter.cmdCancel_Click(); }

void SelMethodDialog::activated() { m_presenter.Form_Activate(); }

}  // namespace tnw::selmethod

// The meta-object code is compiled here, beside the class's own, so that it is laid out with
// the code that shows the first dialog (component/startup_code.ld).
#include "moc_selmethod_dialog.cpp"
