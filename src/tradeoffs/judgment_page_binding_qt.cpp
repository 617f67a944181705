#include "tradeoffs/judgment_page_binding_qt.h"

#include "common/number_box_keys_qt.h"
#include "common/number_format.h"
#include "component/wizard_context.h"
#include "component/wizard_dialog_qt.h"
#include "tradeoffs/elided_label_widget.h"
#include "tradeoffs/judgment_page.h"
#include "tradeoffs/pc_graph_widget.h"
#include "tradeoffs/score_entry.h"
#include "tradeoffs/trade_offs_a_presenter.h"
#include "tradeoffs/trade_offs_judgment_widget.h"

// Qt
#include <QAction>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>

// Std
#include <algorithm>

namespace tnw {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

void setCaption(QLabel* label, const std::string& text) {
  const QString t = qs(text);
  if (label->text() == t) return;
  if (auto* elided = qobject_cast<ElidedLabelWidget*>(label)) {
    elided->setFullText(t);
  } else {
    label->setText(t);
  }
}

}  // namespace

JudgmentPageBindingQt::JudgmentPageBindingQt(TradeOffsJudgmentWidget& widget,
                                             TradeOffsAPresenter& presenter,
                                             const WizardContext& context, QObject* parent)
    : QObject(parent),
      m_widget(widget),
      m_presenter(presenter),
      m_page(presenter.judgmentPage()),
      m_context(context) {
  connectSelection();
  connectScores();
  connectJudgment();
}

// The presenter reports each change, and the dialog renders then; signals that render()
// itself causes are not user actions and are dropped.
template <typename Handler>
void JudgmentPageBindingQt::act(Handler handler) {
  if (m_rendering) return;
  handler();
}

void JudgmentPageBindingQt::connectSelection() {
  const auto& c = m_widget.controls();
  connect(c.optPCAutomatic, &QRadioButton::clicked, this,
          guarded(this, [this] { act([this] { m_presenter.optPCAutomatic_Click(); }); }));
  connect(c.optPCManual, &QRadioButton::clicked, this,
          guarded(this, [this] { act([this] { m_presenter.optPCManual_Click(); }); }));
  connect(c.lstTradeOffFirstC, &QListWidget::currentRowChanged, this,
          guarded(this, [this](int row) {
            act([this, row] { m_presenter.lstTradeOffFirstC_Click(row); });
          }));
  connect(c.lstTradeOffSecondC, &QListWidget::currentRowChanged, this,
          guarded(this, [this](int row) {
            act([this, row] { m_presenter.lstTradeOffSecondC_Click(row); });
          }));
  connect(c.tsComparisonApproaches, &QTabBar::currentChanged, this, guarded(this, [this](int tab) {
            act([this, tab] { m_presenter.tsComparisonApproaches_Click(tab + 1); });
          }));
}

void JudgmentPageBindingQt::connectScores() {
  const auto& c = m_widget.controls();
  for (int box = 0; box < 4; ++box) {
    c.scoreBox[box]->installEventFilter(this);
    // Edits the key filter does not see (paste, Delete) are handed over as the box's new text.
    connect(c.scoreBox[box], &QLineEdit::textEdited, this,
            guarded(this, [this, box](const QString& text) {
              if (m_rendering) return;
              m_presenter.judgmentPage().setScoreText(box, text.toStdString());
              // The box already shows the text; keep its caret where the user left it.
              m_shown[box] = {text.toStdString(), m_page.controls().scoreBoxes[box].selStart, 0};
            }));
    connect(c.stepUp[box], &QAction::triggered, this, guarded(this, [this, box] {
              act([this, box] { m_presenter.tbScoreChanger_ButtonClick(box, true); });
            }));
    connect(c.stepDown[box], &QAction::triggered, this, guarded(this, [this, box] {
              act([this, box] { m_presenter.tbScoreChanger_ButtonClick(box, false); });
            }));
  }
  connect(c.framePCGraph, &PcGraphWidget::pointDragged, this,
          guarded(this, [this](int which, QPointF f, bool) {
            act([&] { m_presenter.dragPoint(which == PcGraphWidget::PointA, f.x(), f.y()); });
          }));
}

void JudgmentPageBindingQt::connectJudgment() {
  const auto& c = m_widget.controls();
  connect(c.verbalGroup, &QButtonGroup::idClicked, this, guarded(this, [this](int id) {
            act([this, id] { m_presenter.optPCVerbal_Click(id); });
          }));
  connect(c.cmdTradeOffClearAll, &QPushButton::clicked, this,
          guarded(this, [this] { act([this] { m_presenter.cmdTradeOffClearAll_Click(); }); }));
  connect(c.cmdTradeOffEnter, &QPushButton::clicked, this, guarded(this, [this] {
            const std::int16_t before = m_page.TradeOffNo();
            act([this] { m_presenter.cmdTradeOffEnter_Click(); });
            // A failed range check leaves the count and returns the focus to the faulty box.
            if (m_page.TradeOffNo() == before && m_page.entryError() &&
                m_page.controls().cmdTradeOffEnter.enabled) {
              focusControl(m_page.focus());
            }
          }));
}

bool JudgmentPageBindingQt::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  // A key in a score box runs the presenter; if it fails, the key goes no further.
  bool filtered = true;
  runGuarded(this, [&] { filtered = filterKey(watched, event); });
  return filtered;
}

bool JudgmentPageBindingQt::filterKey(QObject* watched, QEvent* event) {
  const auto& c = m_widget.controls();
  const auto* it = std::find(std::begin(c.scoreBox), std::end(c.scoreBox), watched);
  if (it == std::end(c.scoreBox)) return QObject::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  // A letter or digit held with Ctrl, Alt or Meta types nothing, as a plain letter.
  if (isDroppedModifiedKey(key)) return true;
  int code = 0;
  if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
    code = ScoreEntry::kEnter;
  } else if (key->key() == Qt::Key_Backspace) {
    code = ScoreEntry::kBackspace;
  } else if (!key->text().isEmpty() && key->text().at(0).unicode() >= ScoreEntry::kBlank &&
             !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
    code = key->text().at(0).unicode();
  } else {
    return QObject::eventFilter(watched, event);
  }
  return scoreBoxKey(static_cast<int>(it - std::begin(c.scoreBox)), **it, code);
}

bool JudgmentPageBindingQt::scoreBoxKey(int box, QLineEdit& edit, int key) {
  const int selStart = edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
  const int selLength = edit.hasSelectedText() ? static_cast<int>(edit.selectedText().size()) : 0;
  act([&] { m_presenter.scoreBoxKeyPress(box, key, selStart, selLength); });
  if (key == ScoreEntry::kEnter) focusControl(m_page.focus());
  return true;
}

void JudgmentPageBindingQt::focusControl(const std::string& name) {
  if (name.empty()) return;
  auto* target = m_widget.findChild<QWidget*>(qs(name));
  if (target == nullptr) return;
  target->setFocus(Qt::OtherFocusReason);
  if (auto* edit = qobject_cast<QLineEdit*>(target)) edit->selectAll();
}

void JudgmentPageBindingQt::render() {
  m_rendering = true;
  renderSelection();
  renderScores();
  renderJudgment();
  renderRangeLabels();
  m_rendering = false;
}

void JudgmentPageBindingQt::renderSelection() {
  const auto& c = m_widget.controls();
  const JudgmentControls& s = m_page.controls();
  c.optPCAutomatic->setChecked(s.optPCAutomatic.value);
  c.optPCManual->setChecked(s.optPCManual.value);
  // The lists are rebuilt only when the attributes change, not on every render.
  if (m_listItems != s.lstTradeOffFirstC.items) {
    m_listItems = s.lstTradeOffFirstC.items;
    QStringList names;
    for (const std::string& n : m_listItems) names << qs(n);
    for (QListWidget* list : {c.lstTradeOffFirstC, c.lstTradeOffSecondC}) {
      list->clear();
      list->addItems(names);
      // A long name is elided in its row; its tooltip has it whole.
      for (int i = 0; i < list->count(); ++i) list->item(i)->setToolTip(names[i]);
      TradeOffsJudgmentWidget::showWholeRows(list);
    }
  }
  const ListState* states[2] = {&s.lstTradeOffFirstC, &s.lstTradeOffSecondC};
  QListWidget* lists[2] = {c.lstTradeOffFirstC, c.lstTradeOffSecondC};
  for (int i = 0; i < 2; ++i) {
    lists[i]->setEnabled(states[i]->enabled);
    if (lists[i]->currentRow() != states[i]->listIndex) {
      lists[i]->setCurrentRow(states[i]->listIndex);
    }
  }
  setCaption(c.labPCThisNum, s.labPCThisNum.caption);
  setCaption(c.labPCNeccesaryNum, s.labPCNeccesaryNum.caption);
  setCaption(c.labPCCriterion1, s.labPCCriterion1.caption);
  setCaption(c.labPCCriterion2, s.labPCCriterion2.caption);
  setCaption(c.labScoreHead1, s.labPCCriterion1.caption);
  setCaption(c.labScoreHead2, s.labPCCriterion2.caption);
  setCaption(c.verbalHead[0], s.labPCCriterion1.caption);
  setCaption(c.verbalHead[1], s.labPCCriterion2.caption);
}

void JudgmentPageBindingQt::renderScores() {
  const auto& c = m_widget.controls();
  const JudgmentControls& s = m_page.controls();
  for (std::size_t b = 0; b < 4; ++b) {
    QLineEdit* edit = c.scoreBox[b];
    const TextBoxState& box = s.scoreBoxes[b];
    edit->setEnabled(box.enabled);
    setCaption(c.verbalScore[b], box.text);
    ShownBox& shown = m_shown[b];
    if (shown.text == box.text && shown.selStart == box.selStart &&
        shown.selLength == box.selLength) {
      continue;
    }
    shown = {box.text, box.selStart, box.selLength};
    const QString text = qs(box.text);
    if (edit->text() != text) edit->setText(text);
    if (box.selLength > 0) {
      edit->setSelection(box.selStart, box.selLength);
    } else {
      edit->setCursorPosition(box.selStart);
    }
  }
  setCaption(c.labTradeOffDiff1, s.labTradeOffDiff1.caption);
  setCaption(c.labTradeOffDiff2, s.labTradeOffDiff2.caption);
  c.framePCGraph->setPoint(PcGraphWidget::PointA, QPointF(s.shpPCA.x, s.shpPCA.y));
  c.framePCGraph->setPoint(PcGraphWidget::PointB, QPointF(s.shpPCB.x, s.shpPCB.y));
}

void JudgmentPageBindingQt::renderJudgment() {
  const auto& c = m_widget.controls();
  const JudgmentControls& s = m_page.controls();
  for (std::size_t i = 0; i < 7; ++i) {
    c.optPCVerbal[i]->setChecked(s.optPCVerbal[i].value);
    c.optPCVerbal[i]->setEnabled(s.optPCVerbal[i].enabled);
  }
  const int tab = s.tsComparisonApproaches - 1;
  if (tab == 0 || tab == 1) {
    c.tsComparisonApproaches->setCurrentIndex(tab);
    c.approaches->setCurrentIndex(tab);
  }
  c.cmdTradeOffClearAll->setEnabled(s.cmdTradeOffClearAll.enabled);
  c.cmdTradeOffEnter->setEnabled(s.cmdTradeOffEnter.enabled);
}

void JudgmentPageBindingQt::renderRangeLabels() {
  const auto& c = m_widget.controls();
  const AttributeModel& m = m_context.model;
  const auto ends = [&m](int att) -> std::pair<double, double> {
    if (att < 0 || att >= kMaxAttributes) return {0.0, 0.0};
    const auto a = static_cast<std::size_t>(att);
    return std::minmax(m.AttScoreLow[a], m.AttScoreHigh[a]);
  };
  const auto [low1, high1] = ends(m_page.FirstAttIndex());
  const auto [low2, high2] = ends(m_page.SecondAttIndex());
  // The score format leaves a bare period after a whole number; the corner labels drop it.
  const auto score = [](double v) {
    std::string s = formatNumber(v, "###,##0.##");
    if (!s.empty() && s.back() == '.') s.pop_back();
    return s;
  };
  const auto text = [&score](double x, double y) { return "(" + score(x) + ", " + score(y) + ")"; };
  setCaption(c.labPCWorstT, text(low1, low2));
  setCaption(c.labPCBestT, text(high1, high2));
}

}  // namespace tnw
