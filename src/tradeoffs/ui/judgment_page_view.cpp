// How the judgment page widget shows a JudgmentPage: the part of TradeOffsJudgmentWidget that
// renders, apart from the part that lays the controls out.
#include "common/core/number_format.h"
#include "model/attribute_model.h"
#include "common/ui/elided_label_widget.h"
#include "tradeoffs/core/judgment_page.h"
#include "tradeoffs/ui/pc_graph_widget.h"
#include "tradeoffs/ui/tradeoffs_judgment_widget.h"

// Qt
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>

// Std
#include <algorithm>
#include <utility>

namespace tnw::tradeoffs {

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

void TradeOffsJudgmentWidget::render(const JudgmentPage& page, const AttributeModel& model) {
  renderSelection(page.controls());
  renderScores(page.controls());
  renderJudgment(page.controls());
  renderRangeLabels(page, model);
}

void TradeOffsJudgmentWidget::keepEditedText(int box, const wizard::TextBoxState& state) {
  if (box < 0 || box > 3) return;
  m_shown[box] = {state.text, state.selStart, 0};
}

void TradeOffsJudgmentWidget::focusControl(const std::string& name) {
  if (name.empty()) return;
  auto* target = findChild<QWidget*>(qs(name));
  if (target == nullptr) return;
  target->setFocus(Qt::OtherFocusReason);
  if (auto* edit = qobject_cast<QLineEdit*>(target)) edit->selectAll();
}

void TradeOffsJudgmentWidget::renderSelection(const JudgmentControls& s) {
  m_c.optPCAutomatic->setChecked(s.optPCAutomatic.value);
  m_c.optPCManual->setChecked(s.optPCManual.value);
  // The lists are rebuilt only when the attributes change, not on every render.
  if (m_listItems != s.lstTradeOffFirstC.items) {
    m_listItems = s.lstTradeOffFirstC.items;
    QStringList names;
    for (const std::string& n : m_listItems) names << qs(n);
    for (QListWidget* list : {m_c.lstTradeOffFirstC, m_c.lstTradeOffSecondC}) {
      list->clear();
      list->addItems(names);
      // A long name is elided in its row; its tooltip has it whole.
      for (int i = 0; i < list->count(); ++i) list->item(i)->setToolTip(names[i]);
      showWholeRows(list);
    }
  }
  const wizard::ListState* states[2] = {&s.lstTradeOffFirstC, &s.lstTradeOffSecondC};
  QListWidget* lists[2] = {m_c.lstTradeOffFirstC, m_c.lstTradeOffSecondC};
  for (int i = 0; i < 2; ++i) {
    lists[i]->setEnabled(states[i]->enabled);
    if (lists[i]->currentRow() != states[i]->listIndex) {
      lists[i]->setCurrentRow(states[i]->listIndex);
    }
  }
  setCaption(m_c.labPCThisNum, s.labPCThisNum.caption);
  setCaption(m_c.labPCNeccesaryNum, s.labPCNeccesaryNum.caption);
  setCaption(m_c.labPCCriterion1, s.labPCCriterion1.caption);
  setCaption(m_c.labPCCriterion2, s.labPCCriterion2.caption);
  setCaption(m_c.labScoreHead1, s.labPCCriterion1.caption);
  setCaption(m_c.labScoreHead2, s.labPCCriterion2.caption);
  setCaption(m_c.verbalHead[0], s.labPCCriterion1.caption);
  setCaption(m_c.verbalHead[1], s.labPCCriterion2.caption);
}

void TradeOffsJudgmentWidget::renderScores(const JudgmentControls& s) {
  for (std::size_t b = 0; b < 4; ++b) {
    QLineEdit* edit = m_c.scoreBox[b];
    const wizard::TextBoxState& box = s.scoreBoxes[b];
    edit->setEnabled(box.enabled);
    setCaption(m_c.verbalScore[b], box.text);
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
  setCaption(m_c.labTradeOffDiff1, s.labTradeOffDiff1.caption);
  setCaption(m_c.labTradeOffDiff2, s.labTradeOffDiff2.caption);
  m_c.framePCGraph->setPoint(PcGraphWidget::PointA, QPointF(s.shpPCA.x, s.shpPCA.y));
  m_c.framePCGraph->setPoint(PcGraphWidget::PointB, QPointF(s.shpPCB.x, s.shpPCB.y));
}

void TradeOffsJudgmentWidget::renderJudgment(const JudgmentControls& s) {
  for (std::size_t i = 0; i < 7; ++i) {
    m_c.optPCVerbal[i]->setChecked(s.optPCVerbal[i].value);
    m_c.optPCVerbal[i]->setEnabled(s.optPCVerbal[i].enabled);
  }
  const int tab = s.tsComparisonApproaches - 1;
  if (tab == 0 || tab == 1) {
    m_c.tsComparisonApproaches->setCurrentIndex(tab);
    m_c.approaches->setCurrentIndex(tab);
  }
  m_c.cmdTradeOffClearAll->setEnabled(s.cmdTradeOffClearAll.enabled);
  m_c.cmdTradeOffEnter->setEnabled(s.cmdTradeOffEnter.enabled);
}

void TradeOffsJudgmentWidget::renderRangeLabels(const JudgmentPage& page,
                                                const AttributeModel& model) {
  const auto ends = [&model](int att) -> std::pair<double, double> {
    if (att < 0 || att >= kMaxAttributes) return {0.0, 0.0};
    const auto a = static_cast<std::size_t>(att);
    return std::minmax(model.AttScoreLow[a], model.AttScoreHigh[a]);
  };
  const auto [low1, high1] = ends(page.FirstAttIndex());
  const auto [low2, high2] = ends(page.SecondAttIndex());
  // The score format leaves a bare period after a whole number; the corner labels drop it.
  const auto score = [](double v) {
    std::string s = formatNumber(v, "###,##0.##");
    if (!s.empty() && s.back() == '.') s.pop_back();
    return s;
  };
  const auto text = [&score](double x, double y) { return "(" + score(x) + ", " + score(y) + ")"; };
  setCaption(m_c.labPCWorstT, text(low1, low2));
  setCaption(m_c.labPCBestT, text(high1, high2));
}

}  // namespace tnw::tradeoffs
