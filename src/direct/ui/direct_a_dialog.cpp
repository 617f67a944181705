#include "direct/ui/direct_a_dialog.h"

#include "common/ui/kept_look_widgets.h"
#include "common/ui/kept_text_label.h"
#include "common/ui/wizard_buttons.h"
#include "direct/core/drag_payload.h"
#include "direct/ui/cone_area_widget.h"
#include "direct/ui/control_rendering.h"
#include "direct/ui/direct_accessibility.h"
#include "direct/ui/direct_judgment_page_widget.h"
#include "direct/ui/direct_order_page_widget.h"
#include "direct/ui/direct_reference_page_widget.h"
#include "direct/ui/direct_results_page_widget.h"
#include "direct/ui/ratio_box_filter.h"
#include "wizard/ui/undo_controls.h"

// Qt
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSizeGrip>
#include <QStackedWidget>
#include <QTableWidget>
#include <QVBoxLayout>

// Std
#include <algorithm>

namespace tnw::direct {
namespace {

QPushButton* makeButton(const char* name, QWidget* parent) {
  auto* button = new KeptPushButton(parent);
  button->setObjectName(QString::fromUtf8(name));
  button->setAutoDefault(false);
  return button;
}

QLabel* makeLabel(const char* name, QWidget* parent) {
  auto* label = new KeptTextLabel(parent);
  label->setObjectName(QString::fromUtf8(name));
  label->setTextFormat(Qt::PlainText);
  return label;
}

}  // namespace

DirectADialog::DirectADialog(WizardContext& context, UiServices& ui, DirectAEvents& events,
                             QWidget* parent, const IntervalsFile* intervalsFile)
    : DialogWindow(parent),
      m_context(context),
      m_ui(ui),
      m_presenter(context, ui, events),
      m_saved(context, ui, m_presenter, intervalsFile) {
  setObjectName(QStringLiteral("frmDirectA"));
  setWindowTitle(QString::fromUtf8(DirectAPresenter::kDesignCaption));
  setSizeGripEnabled(true);

  m_stack = new QStackedWidget(this);
  m_orderPage = new DirectOrderPageWidget(m_stack);
  m_referencePage = new DirectReferencePageWidget(m_stack);
  m_judgmentPage = new DirectJudgmentPageWidget(m_stack);
  m_resultsPage = new DirectResultsPageWidget(m_stack);
  for (QWidget* page :
       {static_cast<QWidget*>(m_orderPage), static_cast<QWidget*>(m_referencePage),
        static_cast<QWidget*>(m_judgmentPage), static_cast<QWidget*>(m_resultsPage)}) {
    m_stack->addWidget(page);
  }
  auto* line = new KeptFrame(this);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(buildHeader());
  layout->addWidget(m_stack, 1);
  layout->addWidget(line);
  layout->addLayout(buildButtons());
  // The size grip sits in the bottom right corner over the layout's margin; a margin as high as
  // the grip keeps it off the Cancel button.
  if (const auto* grip = findChild<QSizeGrip*>()) {
    QMargins margins = layout->contentsMargins();
    margins.setBottom(std::max(margins.bottom(), grip->sizeHint().height()));
    layout->setContentsMargins(margins);
  }

  m_ratioFilter = new RatioBoxFilter(
      m_presenter, m_judgmentPage->lowerBox(), m_judgmentPage->upperBox(),
      [this] { applyFocusRequest(); }, this);
  connectOrderPage();
  connectReferencePage();
  connectJudgmentPage();
  connectButtons();
  connectExports();
  m_timer.setObjectName(QStringLiteral("Timer1"));
  connect(&m_timer, &QTimer::timeout, this, guarded(this, [this] { m_presenter.Timer1_Timer(); }));

  m_presenter.setChangeListener([this] { render(); });
  m_presenter.Form_Load();
  m_accessibility = new DirectAccessibilityQt(this);
  setUpChart();
  render();
  focusStep(0);
  resize(initialSize());
}

DirectADialog::~DirectADialog() {
  // The presenter outlives the widgets' last signals only if it stops calling back first.
  m_presenter.setChangeListener({});
  m_timer.stop();
  deleteViews();
}

QSize DirectADialog::initialSize() const {
  QSize size = sizeHint().expandedTo(QSize(860, 600));
  // On a small screen (or at a large scale) the dialog starts as large as fits; the lists
  // scroll, so every step stays usable down to the layout's minimum.
  if (const QScreen* s = screen()) {
    size = size.boundedTo(s->availableGeometry().size() * 0.92);
  }
  size = size.expandedTo(minimumSizeHint());
  // Wrapped texts need more height when the dialog is narrow.
  if (hasHeightForWidth()) size.setHeight(std::max(size.height(), heightForWidth(size.width())));
  return size;
}

QWidget* DirectADialog::buildHeader() {
  m_header = new QWidget(this);
  m_header->setObjectName(QStringLiteral("picRefHeader"));
  auto* caption = new KeptTextLabel(tr("Reference attribute (Wr):"), m_header);
  m_refImage = makeLabel("imgRefAtt", m_header);
  m_refImage->setFixedSize(32, 32);
  m_refName = makeLabel("lblRefAtt", m_header);
  QLabel* name = m_refName;
  QFont bold = name->font();
  bold.setBold(true);
  name->setFont(bold);
  m_refRange = new QWidget(m_header);
  auto* range = new QHBoxLayout(m_refRange);
  range->setContentsMargins(0, 0, 0, 0);
  range->addWidget(new KeptTextLabel(tr("Score range:"), m_refRange));
  m_refLow = makeLabel("lblRefRangeLow", m_refRange);
  m_refHigh = makeLabel("lblRefRangeHigh", m_refRange);
  range->addWidget(m_refLow);
  range->addWidget(new KeptTextLabel(tr("to"), m_refRange));
  range->addWidget(m_refHigh);
  auto* row = new QHBoxLayout(m_header);
  row->setContentsMargins(0, 0, 0, 4);
  row->addWidget(caption);
  row->addWidget(m_refImage);
  row->addWidget(name, 1);
  row->addWidget(m_refRange);
  return m_header;
}

QLayout* DirectADialog::buildButtons() {
  m_cmdBack = makeButton("cmdBack", this);
  m_cmdNext = makeButton("cmdNext", this);
  m_cmdFinish = makeButton("cmdFinish", this);
  m_cmdCancel = makeButton("cmdCancel", this);
  m_cmdHelp = makeButton("cmdHelp", this);
  m_cmdPrint = makeButton("cmdPrint", this);
  m_cmdNext->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->setContentsMargins(0, 0, 0, 0);
  buttons->addWidget(makeWizardButtonBox(this, {.back = m_cmdBack,
                                                .next = m_cmdNext,
                                                .finish = m_cmdFinish,
                                                .cancel = m_cmdCancel,
                                                .help = m_cmdHelp,
                                                .print = m_cmdPrint}));
  return buttons;
}

void DirectADialog::connectOrderPage() {
  DirectOrderPageWidget* page = m_orderPage;
  DirectAPresenter& p = m_presenter;
  connect(page, &DirectOrderPageWidget::droppedOnGroup, this,
          guarded(this, [&p](int group, const QByteArray& tag) {
            p.picOrder_DragDrop(group, tag.toStdString());
          }));
  connect(page, &DirectOrderPageWidget::droppedOnPlaced, this,
          guarded(this, [&p](int att, const QByteArray& tag) {
            p.cmdAttB_DragDrop(att, tag.toStdString());
          }));
  connect(page, &DirectOrderPageWidget::draggedOverList, this,
          guarded(this, [&p](const QByteArray& tag) { p.lblAttName_DragOver(tag.toStdString()); }));
  connect(page, &DirectOrderPageWidget::groupClicked, this,
          guarded(this, [&p](int group) { p.picOrder_Click(group); }));
  connect(page, &DirectOrderPageWidget::placedClicked, this,
          guarded(this, [&p](int att) { p.cmdAttB_Click(att); }));
  connect(page, &DirectOrderPageWidget::attributeInfoRequested, this,
          guarded(this, [&p](int att) { p.optAttInfo_Click(att); }));
  connect(
      page, &DirectOrderPageWidget::placeRequested, this, guarded(this, [this](int att) {
        const int group = m_presenter.ordering().order().SelectedGroup();
        m_presenter.picOrder_DragDrop(group, encodeDragPayload({DragSource::AttributeList, att}));
        // The next attribute is ready for the next key press; with none left, Next is.
        if (!m_orderPage->focusFirstListed()) m_cmdNext->setFocus(Qt::OtherFocusReason);
      }));
  connect(page, &DirectOrderPageWidget::addClicked, this,
          guarded(this, [&p] { p.cmdAdd_Click(); }));
  connect(page, &DirectOrderPageWidget::insertClicked, this,
          guarded(this, [&p] { p.cmdInsert_Click(); }));
}

void DirectADialog::connectReferencePage() {
  connect(m_referencePage, &DirectReferencePageWidget::attributeClicked, this,
          guarded(this, [this](int i) { m_presenter.cmdAttButtons_Click(i); }));
}

void DirectADialog::connectJudgmentPage() {
  DirectJudgmentPageWidget* page = m_judgmentPage;
  connect(page->targetList(), &QComboBox::activated, this,
          guarded(this, [this](int i) { m_presenter.imgcmbTargetAtt_Click(i); }));
  connect(page->coneArea(), &ConeAreaWidget::handleDragged, this,
          guarded(this, [this](int index, QPointF pt) {
            m_presenter.picHandle_Drag(index, static_cast<float>(pt.x()),
                                       static_cast<float>(pt.y()));
          }));
  connect(page->enterButton(), &QPushButton::clicked, this, guarded(this, [this] {
            // A failed bound check gives the focus back to its box, with the text selected.
            if (!m_presenter.cmdEnter_Click() && m_presenter.judgment().validity() == 0) {
              applyFocusRequest();
            }
          }));
  connect(page->restartButton(), &QPushButton::clicked, this,
          guarded(this, [this] { m_presenter.cmdReStart_Click(); }));
  connect(page->saveButton(), &QPushButton::clicked, this,
          guarded(this, [this] { m_saved.cmdSaveJudgments_Click(); }));
  connect(page->loadButton(), &QPushButton::clicked, this,
          guarded(this, [this] { m_saved.cmdLoadJudgments_Click(); }));

  connectUndo(
      this, {page->undoButton(), page->redoButton()}, [this] { m_presenter.cmdUndo_Click(); },
      [this] { m_presenter.cmdRedo_Click(); });
}

void DirectADialog::connectButtons() {
  connect(m_cmdBack, &QPushButton::clicked, this,
          guarded(this, [this] { m_presenter.cmdBack_Click(); }));
  connect(m_cmdNext, &QPushButton::clicked, this,
          guarded(this, [this] { m_presenter.cmdNext_Click(); }));
  connect(m_cmdFinish, &QPushButton::clicked, this,
          guarded(this, [this] { m_presenter.cmdFinish_Click(); }));
  connect(m_cmdCancel, &QPushButton::clicked, this,
          guarded(this, [this] { m_presenter.cmdCancel_Click(); }));
  connect(m_cmdHelp, &QPushButton::clicked, this,
          guarded(this, [this] { m_presenter.cmdHelp_Click(); }));
  auto* help = new QShortcut(QKeySequence::HelpContents, this);
  connect(help, &QShortcut::activated, this,
          guarded(this, [this] { m_presenter.cmdHelp_Click(); }));
}

void DirectADialog::closeRequested() { m_presenter.cmdCancel_Click(); }

void DirectADialog::render() {
  // A render can set off another change (a focus move runs a check); that one renders after.
  if (m_rendering) {
    m_renderAgain = true;
    return;
  }
  m_rendering = true;
  do {
    m_renderAgain = false;
    const int step = m_presenter.WizardStep();
    setWindowTitle(QString::fromStdString(m_presenter.caption()));
    // Only the page on show is rendered; a page is brought up to date when its step comes.
    const DirectAPresenter& p = m_presenter;
    switch (step) {
      case DirectAPresenter::kOrderStep:
        m_orderPage->render(p.ordering());
        break;
      case DirectAPresenter::kReferenceStep:
        m_referencePage->render(p.reference(), p.ordering(), p.lamps(), p.result());
        break;
      case DirectAPresenter::kJudgmentStep:
        m_judgmentPage->render(p.judgment(), p.ordering(), p.lamps(), p.result());
        break;
      default:
        m_resultsPage->render(m_presenter.grid());
        m_resultsPage->renderExactBounds(m_context.model, m_presenter.exactBounds());
        m_resultsPage->renderExports(m_presenter.results());
        break;
    }
    renderControls();
    renderHeader();
    applyTabOrder(step);
    if (m_stack->currentIndex() != step) {
      m_stack->setCurrentIndex(step);
      focusStep(step);
    }
    const int interval = m_presenter.timerInterval();
    if (interval <= 0) {
      m_timer.stop();
    } else if (!m_timer.isActive() || m_timer.interval() != interval) {
      m_timer.start(interval);
    }
  } while (m_renderAgain);
  if (m_accessibility != nullptr) m_accessibility->refresh();
  m_rendering = false;
}

void DirectADialog::renderControls() {
  const DirectAPresenter& p = m_presenter;
  renderButton(m_cmdBack, p.cmdBack());
  renderButton(m_cmdNext, p.cmdNext());
  renderButton(m_cmdFinish, p.cmdFinish());
  renderButton(m_cmdCancel, p.cmdCancel());
  renderButton(m_cmdHelp, p.cmdHelp());
  // Print belongs to the results step; the earlier steps do not show it.
  wizard::ButtonState print = p.results().cmdPrint();
  print.visible = print.visible && p.WizardStep() == DirectAPresenter::kResultsStep;
  renderButton(m_cmdPrint, print);
  m_orderPage->renderControls(p.ordering());
  m_judgmentPage->renderControls(p.judgment());
  renderButton(m_judgmentPage->saveButton(), m_saved.cmdSaveJudgments());
  renderButton(m_judgmentPage->loadButton(), m_saved.cmdLoadJudgments());

  renderButton(m_judgmentPage->undoButton(), p.cmdUndo());
  renderButton(m_judgmentPage->redoButton(), p.cmdRedo());
  renderLabel(m_refName, p.lblRefAtt());
  renderLabel(m_refLow, p.judgment().lblRefRangeLow());
  renderLabel(m_refHigh, p.judgment().lblRefRangeHigh());
  renderImage(m_refImage, p.judgment().imgRefAtt());
}

void DirectADialog::renderHeader() {
  const int step = m_presenter.WizardStep();
  m_header->setVisible(step == 1 || step == 2);
  m_refImage->setVisible(step == 2);
  m_refRange->setVisible(step == 2);
}

void DirectADialog::applyTabOrder(int step) {
  // Controls made while the dialog runs would otherwise come after the wizard buttons.
  QList<QWidget*> chain;
  switch (step) {
    case 0:
      chain = m_orderPage->tabChain();
      break;
    case 1:
      chain = m_referencePage->orderView()->tabChain();
      break;
    case 2:
      chain << m_judgmentPage->targetList() << m_judgmentPage->lowerBox()
            << m_judgmentPage->upperBox() << m_judgmentPage->enterButton()
            << m_judgmentPage->restartButton() << m_judgmentPage->undoButton()
            << m_judgmentPage->redoButton() << m_judgmentPage->tabs();
      chain.append(m_judgmentPage->orderList()->tabChain());
      break;
    default:
      chain << m_resultsPage->grid() << m_resultsPage->exactGrid() << m_resultsPage->chart()
            << m_resultsPage->copyButton() << m_resultsPage->saveCsvButton()
            << m_resultsPage->saveSvgButton();
      break;
  }
  // The buttons follow in the order their box shows them. The box makes its first button its
  // focus proxy, which would take the others out of this chain; the chain links them itself.
  QWidget* box = m_cmdHelp->parentWidget();
  box->setFocusProxy(nullptr);
  for (int i = 0; box->layout() != nullptr && i < box->layout()->count(); ++i) {
    if (QWidget* w = box->layout()->itemAt(i)->widget()) chain << w;
  }
  if (chain == m_tabChain) return;
  m_tabChain = chain;
  for (int i = 1; i < chain.size(); ++i) setTabOrder(chain[i - 1], chain[i]);
}

void DirectADialog::releasePressedButtons() {
  // A press on a button that took the focus from a box whose check then failed was let go
  // over the modal message box, so the button never saw the release: it must not stay drawn
  // pressed (nor click when a stray release comes).
  for (QAbstractButton* button : findChildren<QAbstractButton*>()) {
    if (button->isDown()) button->setDown(false);
  }
}

void DirectADialog::focusStep(int step) {
  QWidget* first = nullptr;
  switch (step) {
    case 0:
      if (m_orderPage->focusFirstListed()) return;
      first = m_cmdNext;
      break;
    case 1:
      first = m_referencePage->firstButton();
      break;
    case 2:
      first = m_judgmentPage->targetList();
      break;
    default:
      first = m_resultsPage->grid();
      break;
  }
  if (first != nullptr && first->isEnabled()) first->setFocus(Qt::OtherFocusReason);
}

void DirectADialog::applyFocusRequest() {
  if (m_presenter.WizardStep() != 2) return;
  if (m_presenter.judgment().validity() == 0) releasePressedButtons();
  const std::string& name = m_presenter.judgment().focus();
  if (name.empty()) return;
  QWidget* target = findChild<QWidget*>(QString::fromStdString(name));
  if (target == nullptr || !target->isVisible()) return;
  // Enter pressed by its mnemonic leaves the focus in the box; its selection is still shown.
  if (target != focusWidget()) {
    m_ratioFilter->setRestoringFocus(true);
    target->setFocus(Qt::OtherFocusReason);
    m_ratioFilter->setRestoringFocus(false);
  }
  if (auto* edit = qobject_cast<QLineEdit*>(target)) {
    const auto box =
        edit == m_judgmentPage->lowerBox() ? JudgmentPage::Box::Lower : JudgmentPage::Box::Upper;
    RatioBoxFilter::showBoxState(edit, m_presenter.judgment().box(box));
  }
}

}  // namespace tnw::direct
