#include "tradeoffs/core/judgment_page.h"

#include "common/core/number_format.h"
#include "common/core/ui_services.h"
#include "model/attribute_names.h"
#include "model/value_function.h"
#include "tradeoffs/core/score_entry.h"
#include "wizard/core/wizard_context.h"

// Std
#include <cmath>

namespace tnw::tradeoffs {

namespace {

constexpr const char* kTitle = "NORIX";

// The attribute's stored low or high end, as stored: a range may run from a larger low end to
// a smaller high end (a price, for instance), and the range message keeps that order.
double scoreEnd(const AttributeModel& m, int att, bool high) {
  if (att < 0 || att >= kMaxAttributes) return 0.0;
  const auto a = static_cast<std::size_t>(att);
  return high ? m.AttScoreHigh[a] : m.AttScoreLow[a];
}

}  // namespace

JudgmentPage::JudgmentPage(WizardContext& context, UiServices& ui, RandomSource& random)
    : m_context(context), m_ui(ui), m_pairs(random) {}

void JudgmentPage::reset() {
  const int numAtt = m_context.model.attributeCount();
  m_tradeOffNo = 0;
  // (NumAtt - 1) × NumAtt / 2 pairs, each judged twice.
  m_tradeOffsNeeded = static_cast<std::int16_t>((numAtt - 1) * numAtt / 2 * 2);
  m_store.dimension(m_tradeOffsNeeded, numAtt);
  std::vector<std::string> names;
  for (int i = 0; i < numAtt; ++i) names.push_back(model::attributeName(m_context.model, i));
  m_controls.lstTradeOffFirstC.items = names;
  m_controls.lstTradeOffSecondC.items = names;
  m_controls.labPCThisNum.caption = "1";
  m_controls.labPCNeccesaryNum.caption = std::to_string(m_tradeOffsNeeded);
  m_focus = kNoFocus;
  setPair(0, 1);
}

void JudgmentPage::revisitPage() {
  enableEnter();
  reset();
}

void JudgmentPage::setPair(int first, int second) {
  m_first = static_cast<std::int16_t>(first);
  m_second = static_cast<std::int16_t>(second);
  const auto listIndex = [](const wizard::ListState& l, int i) {
    return i >= 0 && i < static_cast<int>(l.items.size()) ? i : -1;
  };
  m_controls.lstTradeOffFirstC.listIndex = listIndex(m_controls.lstTradeOffFirstC, first);
  m_controls.lstTradeOffSecondC.listIndex = listIndex(m_controls.lstTradeOffSecondC, second);
  relabel();
  DisplayScoresInTxtBox(first, second);
}

void JudgmentPage::relabel() {
  const AttributeModel& m = m_context.model;
  m_controls.labPCCriterion1.caption = model::attributeName(m, m_first);
  m_controls.labPCCriterion2.caption = model::attributeName(m, m_second);
  m_lowFirst = static_cast<float>(scoreEnd(m, m_first, false));
  m_highFirst = static_cast<float>(scoreEnd(m, m_first, true));
  m_lowSecond = static_cast<float>(scoreEnd(m, m_second, false));
  m_highSecond = static_cast<float>(scoreEnd(m, m_second, true));
  m_panel.setRanges(m_lowFirst, m_highFirst, m_lowSecond, m_highSecond);
  m_controls.lstTradeOffFirstC.enabled = !m_automatic;
  m_controls.lstTradeOffSecondC.enabled = !m_automatic;
}

void JudgmentPage::DisplayScoresInTxtBox(int first, int second) {
  const TradeOffScores s = m_pairs.drawScores(m_context.model, first, second);
  const Currency scores[4] = {s.A1, s.A2, s.B1, s.B2};
  for (std::size_t i = 0; i < 4; ++i) {
    m_controls.scoreBoxes[i].setText(formatNumber(scores[i].toDouble(), "###,##0.0#"));
  }
  m_panel.PositioningAandB(s.A1.toDouble(), s.A2.toDouble(), s.B1.toDouble(), s.B2.toDouble());
  m_controls.shpPCA = m_panel.shpPCA();
  m_controls.shpPCB = m_panel.shpPCB();
}

void JudgmentPage::optPCAutomatic_Click() {
  m_automatic = true;
  m_controls.optPCAutomatic.value = true;
  m_controls.optPCManual.value = false;
  setPair(0, 1);
}

void JudgmentPage::optPCManual_Click() {
  m_automatic = false;
  m_controls.optPCAutomatic.value = false;
  m_controls.optPCManual.value = true;
  m_controls.lstTradeOffFirstC.enabled = true;
  m_controls.lstTradeOffSecondC.enabled = true;
}

void JudgmentPage::lstTradeOffFirstC_Click(int index) {
  if (!m_controls.lstTradeOffFirstC.enabled) return;
  if (index < 0 || index >= static_cast<int>(m_controls.lstTradeOffFirstC.items.size())) return;
  if (index == m_second) {
    m_ui.messageBox(kFirstListRefusal, MessageIcon::Exclamation, kTitle);
    m_controls.lstTradeOffFirstC.listIndex = m_first;
    return;
  }
  setPair(index, m_second);
}

void JudgmentPage::lstTradeOffSecondC_Click(int index) {
  if (!m_controls.lstTradeOffSecondC.enabled) return;
  if (index < 0 || index >= static_cast<int>(m_controls.lstTradeOffSecondC.items.size())) return;
  if (index == m_first) {
    m_ui.messageBox(kSecondListRefusal, MessageIcon::Exclamation, kTitle);
    m_controls.lstTradeOffSecondC.listIndex =
        m_second < static_cast<int>(m_controls.lstTradeOffSecondC.items.size()) ? m_second : -1;
    return;
  }
  setPair(m_first, index);
}

void JudgmentPage::scoreBoxKeyPress(int box, int key, int selStart, int selLength) {
  if (box < 0 || box > 3) return;
  wizard::TextBoxState& b = m_controls.scoreBoxes[static_cast<std::size_t>(box)];
  b.selStart = selStart;
  b.selLength = selLength;
  if (key == ScoreEntry::kEnter) {
    if (!CheckData()) return;
    m_panel.PositioningAandB(boxValue(0), boxValue(1), boxValue(2), boxValue(3));
    m_controls.shpPCA = m_panel.shpPCA();
    m_controls.shpPCB = m_panel.shpPCB();
    m_focus = kEnterFocus;
    return;
  }
  const int filtered = ScoreEntry::DoKeyPress(b, key);
  if (filtered != 0) ScoreEntry::applyKey(b, filtered);
}

void JudgmentPage::setScoreText(int box, const std::string& text) {
  if (box < 0 || box > 3) return;
  wizard::TextBoxState& b = m_controls.scoreBoxes[static_cast<std::size_t>(box)];
  b.text = text;
  b.selStart = static_cast<int>(text.size());
  b.selLength = 0;
}

void JudgmentPage::tbScoreChanger_ButtonClick(int index, bool up) {
  if (index < 0 || index > 3) return;
  const bool first = index % 2 == 0;
  wizard::TextBoxState& b = m_controls.scoreBoxes[static_cast<std::size_t>(index)];
  b.text = ScoreEntry::step(b.text, first ? m_lowFirst : m_lowSecond,
                            first ? m_highFirst : m_highSecond, up);
  m_changedByToolbar = true;
}

void JudgmentPage::dragPoint(bool pointA, double x, double y) {
  m_panel.movePoint(pointA, x, y);
  const PanelPoint& p = pointA ? m_panel.shpPCA() : m_panel.shpPCB();
  const std::size_t base = pointA ? 0 : 2;
  m_controls.scoreBoxes[base].text = formatNumber(m_panel.XtoScore(p.x), "###,##0.##");
  m_controls.scoreBoxes[base + 1].text = formatNumber(m_panel.YtoScore(p.y), "###,##0.##");
  m_controls.shpPCA = m_panel.shpPCA();
  m_controls.shpPCB = m_panel.shpPCB();
}

void JudgmentPage::optPCVerbal_Click(int index) {
  if (index < 0 || index > 6) return;
  for (std::size_t i = 0; i < 7; ++i) {
    m_controls.optPCVerbal[i].value = static_cast<int>(i) == index;
  }
}

void JudgmentPage::tsComparisonApproaches_Click(int tab) {
  if (tab == 1 || tab == 2) m_controls.tsComparisonApproaches = tab;
}

double JudgmentPage::boxValue(int box) const {
  return leadingNumber(model::trimmed(m_controls.scoreBoxes[static_cast<std::size_t>(box)].text));
}

void JudgmentPage::fail(const std::string& text) {
  m_ui.beep();
  m_ui.messageBox(text, MessageIcon::Exclamation, kTitle);
}

bool JudgmentPage::CheckEnteredDataF(int box) {
  return checkBoxRange(box, m_lowFirst, m_highFirst);
}

bool JudgmentPage::CheckEnteredDataS(int box) {
  return checkBoxRange(box, m_lowSecond, m_highSecond);
}

bool JudgmentPage::checkBoxRange(int box, float low, float high) {
  if (box < 0 || box > 3) return false;
  wizard::TextBoxState& b = m_controls.scoreBoxes[static_cast<std::size_t>(box)];
  const std::optional<std::string> message = ScoreEntry::checkRange(b.text, low, high);
  if (!message) return true;
  m_entryError = true;
  m_focus = static_cast<std::int8_t>(box);
  b.selStart = 0;
  b.selLength = static_cast<int>(b.text.size());
  fail(*message);
  return false;
}

bool JudgmentPage::CheckData() {
  m_entryError = false;
  // A1, B1 on the first attribute, then A2, B2 on the second; the first failure ends the check.
  return CheckEnteredDataF(kBoxAFirst) && CheckEnteredDataF(kBoxBFirst) &&
         CheckEnteredDataS(kBoxASecond) && CheckEnteredDataS(kBoxBSecond);
}

void JudgmentPage::cmdTradeOffEnter_Click() {
  if (!m_controls.cmdTradeOffEnter.enabled) return;
  m_ui.setBusy(true);
  ++m_tradeOffNo;
  if (m_tradeOffNo > m_tradeOffsNeeded) {
    m_ui.beep();
    m_ui.messageBox(kFinishedMessage, MessageIcon::Information, kTitle);
    m_controls.cmdTradeOffEnter.enabled = false;
    m_ui.setBusy(false);
    return;
  }
  if (!CheckData() || !recordJudgment()) {
    --m_tradeOffNo;
    m_ui.setBusy(false);
    return;
  }
  m_controls.labPCThisNum.caption = std::to_string(m_tradeOffNo + 1);
  if (m_automatic) {
    // Neighbouring attributes in model order, round the end back to the first: the intended
    // cycle, which offers every neighbouring pair NumAtt - 1 times.
    const int numAtt = m_context.model.attributeCount();
    const int second = m_second == numAtt - 1 ? 0 : m_second + 1;
    setPair(m_second, second);
    showDifferences();
  }
  m_ui.setBusy(false);
}

bool JudgmentPage::recordJudgment() {
  const int numAtt = m_context.model.attributeCount();
  std::vector<double> diffs(static_cast<std::size_t>(numAtt), 0.0);
  for (int j = 1; j <= numAtt; ++j) {
    std::optional<double> d = 0.0;
    if (j == m_first + 1) {
      d = WeightsInput(j, 1);
    } else if (j == m_second + 1) {
      d = WeightsInput(j, 2);
    }
    if (!d) return false;
    diffs[static_cast<std::size_t>(j - 1)] = *d;
  }
  const int k = m_tradeOffNo;
  m_store.extend(k, numAtt);
  const auto at = static_cast<std::size_t>(k - 1);
  m_store.ScoreAFirst[at] = boxValue(0);
  m_store.ScoreBFirst[at] = boxValue(2);
  m_store.ScoreASecond[at] = boxValue(1);
  m_store.ScoreBSecond[at] = boxValue(3);
  std::int16_t response = 0;
  if (m_controls.tsComparisonApproaches == 2) {
    for (std::size_t i = 0; i < 7; ++i) {
      if (m_controls.optPCVerbal[i].value) response = static_cast<std::int16_t>(i) - 3;
    }
  }
  m_store.PrefResponse[at] = response;
  m_store.FirstAtt[at] = m_first;
  m_store.SecondAtt[at] = m_second;
  m_store.ValueDiff[at] = std::move(diffs);
  m_store.JudgmentCount = k;
  return true;
}

std::optional<double> JudgmentPage::WeightsInput(int attribute, int which) const {
  const int att = attribute - 1;
  const int boxA = which == 1 ? 0 : 1;
  const AttValueResult a = SingleAttValue(m_context.model, att, boxValue(boxA));
  const AttValueResult b = SingleAttValue(m_context.model, att, boxValue(boxA + 2));
  for (const AttValueResult* r : {&a, &b}) {
    if (!r->value) {
      m_ui.beep();
      m_ui.messageBox(valueFailureMessage(m_context.model, att, r->failure),
                      MessageIcon::Exclamation, kTitle);
      return std::nullopt;
    }
  }
  // The difference is formed in currency, then handed on as a double.
  return Currency::fromTicks(a.value->ticks() - b.value->ticks()).toDouble();
}

void JudgmentPage::showDifferences() {
  m_controls.labTradeOffDiff1.caption = formatNumber(boxValue(0) - boxValue(2), "###,##0.0#");
  m_controls.labTradeOffDiff2.caption = formatNumber(boxValue(1) - boxValue(3), "###,##0.0#");
}

void JudgmentPage::cmdTradeOffClearAll_Click() {
  m_tradeOffNo = 0;
  m_store.JudgmentCount = 0;
  m_controls.labPCThisNum.caption = "1";
  m_controls.cmdTradeOffEnter.enabled = true;
}

std::optional<Currency> JudgmentPage::AbsoluteWeight(int p, int q, int order) const {
  // order 1: the first-attribute boxes hold q's scores and the second-attribute boxes p's.
  const int pBoxA = order == 1 ? 1 : 0;
  const int qBoxA = order == 1 ? 0 : 1;
  const AttributeModel& m = m_context.model;
  const AttValueResult pa = SingleAttValue(m, p, boxValue(pBoxA));
  const AttValueResult pb = SingleAttValue(m, p, boxValue(pBoxA + 2));
  const AttValueResult qa = SingleAttValue(m, q, boxValue(qBoxA));
  const AttValueResult qb = SingleAttValue(m, q, boxValue(qBoxA + 2));
  if (!pa.value || !pb.value || !qa.value || !qb.value) return std::nullopt;
  if (*qa.value == *qb.value) return Currency();
  const double ratio =
      (pa.value->toDouble() - pb.value->toDouble()) / (qa.value->toDouble() - qb.value->toDouble());
  return Currency::fromDouble(ratio);
}

}  // namespace tnw::tradeoffs
