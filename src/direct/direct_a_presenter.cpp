#include "direct/direct_a_presenter.h"

#include "direct/attribute_texts.h"
#include "direct/previous_judgments.h"
#include "model/model_check.h"

// Std
#include <algorithm>
#include <cstddef>

namespace tnw {

DirectAPresenter::DirectAPresenter(WizardContext& context, UiServices& ui, DirectAEvents& events)
    : m_context(context),
      m_shared{context, ui, events, m_controls},
      m_ordering(m_shared, usableCount(context)),
      m_judgment(m_shared, m_lamps) {
  addControls();
}

int DirectAPresenter::usableCount(const WizardContext& context) {
  const int n = context.model.NumAtt;
  return n >= 1 && n <= kMaxAttributes ? n : 0;
}

void DirectAPresenter::addControls() {
  ControlRegistry& c = m_controls;
  c.add("frmDirectA", kDesignCaption);
  c.add("cmdBack", "< &Back");
  c.add("cmdNext", "&Next >");
  c.add("cmdFinish", "&Finish");
  c.add("cmdCancel", "&Cancel");
  c.add("cmdHelp", "&Help");
  c.add("cmdEnter", "&Enter");
  c.add("cmdReStart", "&Re-start All");
  c.add("cmdAdd", "&Add");
  c.add("cmdInsert", "&Insert");
  c.add("frameAttInfo", "Attribute 1's information");
  c.add("lblNotice3", OrderingPage::kNotice);
  for (const char* name :
       {"labAttName", "labAttProperty", "txtAttDefinition", "lblRefAtt", "lblTargetAtt",
        "lblChartRefAtt", "lblChartTarAtt", "lblRefRangeLow", "lblRefRangeHigh", "lblTarRangeLow",
        "lblTarRangeHigh", "imgRefAtt", "imgTargetAtt"}) {
    c.add(name);
  }
  c.add("picIndicator");
  c.setVisible("picIndicator", false);
}

void DirectAPresenter::changed() const {
  if (m_listener) m_listener();
}

void DirectAPresenter::setStep(int step, bool withCaption) {
  m_step = step;
  if (withCaption) m_controls.setCaption("frmDirectA", kCaptions[static_cast<std::size_t>(step)]);
  m_controls.setVisible("cmdEnter", step == 2);
  m_controls.setVisible("cmdReStart", step == 2);
  m_controls.setVisible("cmdAdd", step == 0);
  m_controls.setVisible("cmdInsert", step == 0);
}

void DirectAPresenter::Form_Load() {
  m_controls.setEnabled("cmdNext", false);
  m_controls.setEnabled("cmdFinish", false);
  m_usable = usableCount(m_context) > 0;
  m_ordering.IniAttList();
  m_ordering.IniOrderList();
  if (!m_usable) {
    m_controls.setEnabled("cmdAdd", false);
    m_controls.setEnabled("cmdInsert", false);
    m_shared.warn(attributeCountProblem(m_context.model).value_or(""));
  } else if (PreviousJudgments::hasPreviousResult(m_context.model)) {
    WeightRatioJudgments judgments(m_context);
    PreviousJudgments::Order order;
    const auto outcome = PreviousJudgments::GetPreviousOrder(m_context, judgments, order);
    m_resume = outcome == PreviousJudgments::Outcome::Resumed;
    if (m_resume) {
      m_ordering.DisplayPreviousOrder(order);
      m_controls.setEnabled("cmdNext", true);
    } else {
      m_shared.warn(PreviousJudgments::message(outcome));
    }
  }
  m_ordering.clickGroup(1);
  setStep(0, true);
  m_shared.events.SendMasseges(kOrderMessage);
  changed();
}

void DirectAPresenter::cmdNext_Click() {
  if (!m_usable || !m_controls.enabled("cmdNext")) return;
  switch (m_step) {
    case 0:
      nextFromOrder();
      break;
    case 1:
      nextFromReference();
      break;
    case 2:
      nextFromJudgments();
      break;
    default:
      return;
  }
  changed();
}

void DirectAPresenter::nextFromOrder() {
  const FinalOrder order = m_ordering.order().GetFinalOrder();
  m_context.FinalGroupCount = order.FinalGroupCount;
  m_context.FinalGroupSize = order.FinalGroupSize;
  m_context.FinalAttGroup = order.FinalAttGroup;
  if (!m_resume) {
    m_controls.setCaption("lblRefAtt", "");
    m_controls.setEnabled("cmdNext", false);
  } else {
    for (int i = 0; i < m_ordering.order().numAtt(); ++i) {
      if (i == m_context.RefAtt) {
        cmdAttButtons_Click(i);
        break;
      }
    }
    m_controls.setEnabled("cmdNext", true);
  }
  m_lamps.setTimerInterval(StatusLamps::kTimerSlow);
  setStep(1, true);
}

void DirectAPresenter::nextFromReference() {
  setStep(2, true);
  m_judgment.enter(m_resume);
}

void DirectAPresenter::nextFromJudgments() {
  setStep(3, true);
  m_controls.setEnabled("cmdBack", true);
  m_controls.setEnabled("cmdFinish", true);
  m_controls.setEnabled("cmdNext", false);
  m_grid.SetNTTable(m_ordering.order().numAtt());
  m_grid.Fill_gridTN(m_context.model, m_context.LowerWeights, m_context.UpperWeights);
  // The bounds cover the model's attributes only, as the grid does.
  const auto n = static_cast<std::size_t>(m_ordering.order().numAtt());
  const auto firstN = [n](const std::vector<double>& v) {
    return std::vector<double>(v.begin(),
                               v.begin() + static_cast<std::ptrdiff_t>(std::min(n, v.size())));
  };
  m_exactBounds =
      ExactWeightBounds::compute(firstN(m_context.LowerWeights), firstN(m_context.UpperWeights),
                                 m_context.FinalAttGroup, m_context.RefAtt);
}

void DirectAPresenter::cmdBack_Click() {
  switch (m_step) {
    case 0:
      changed();
      m_shared.events.ShowTNWSelMethod();
      m_shared.events.UnloadDirectA();
      return;
    case 1:
      m_indicator = -1;
      m_controls.setVisible("picIndicator", false);
      m_lamps.setTimerInterval(StatusLamps::kTimerStopped);
      m_controls.setCaption("lblRefAtt", "");
      setStep(0, true);
      m_controls.setEnabled("cmdNext", true);
      break;
    case 2:
      setStep(1, true);
      m_judgment.leave();
      break;
    case 3:
      setStep(2, true);
      m_controls.setEnabled("cmdNext", true);
      break;
    default:
      return;
  }
  changed();
}

void DirectAPresenter::cmdFinish_Click() {
  if (!m_usable || !m_controls.enabled("cmdFinish")) return;
  const auto outcome = DirectExport::compute(m_context.LowerWeights, m_context.UpperWeights,
                                             m_ordering.order().numAtt(), m_export);
  if (outcome != DirectExport::Outcome::Exported) {
    m_shared.warn(DirectExport::message(outcome));
    changed();
    return;
  }
  changed();
  m_shared.events.ExportDirectAW(kTNType, m_context.RefAtt, m_export.Weights, m_export.WeightsH,
                                 m_export.WeightsL);
  m_shared.events.UnloadTNWizard(m_context.FileIndex, true);
}

void DirectAPresenter::cmdCancel_Click() {
  m_shared.events.UnloadTNWizard(m_context.FileIndex, false);
}

void DirectAPresenter::cmdHelp_Click() {
  m_shared.ui.showHelp(m_context.NorixDir + "\\" + kHelpFile, kHelpContext);
}

void DirectAPresenter::Timer1_Timer() {
  m_lamps.tick();
  changed();
}

void DirectAPresenter::picOrder_DragDrop(int group, std::string_view tag) {
  if (m_step != 0) return;
  m_ordering.dropOnGroup(tag, group);
  changed();
}

void DirectAPresenter::cmdAttB_DragDrop(int att, std::string_view tag) {
  if (m_step != 0) return;
  m_ordering.dropOnPlacedAttribute(tag, att);
  changed();
}

void DirectAPresenter::cmdAdd_Click() {
  if (m_step != 0 || !m_controls.enabled("cmdAdd")) return;
  m_ordering.add();
  changed();
}

void DirectAPresenter::cmdInsert_Click() {
  if (m_step != 0 || !m_controls.enabled("cmdInsert")) return;
  m_ordering.insert();
  changed();
}

void DirectAPresenter::picOrder_Click(int group) {
  m_ordering.clickGroup(group);
  changed();
}

void DirectAPresenter::cmdAttB_Click(int att) {
  m_ordering.clickPlacedAttribute(att);
  changed();
}

void DirectAPresenter::optAttInfo_Click(int att) {
  m_ordering.showAttributeInfo(att);
  changed();
}

void DirectAPresenter::lblAttName_DragOver(std::string_view tag) {
  m_ordering.dragOverAttributeList(tag);
  changed();
}

void DirectAPresenter::cmdAttButtons_Click(int i) {
  if (m_step > 1 || i < 0 || i >= m_ordering.order().numAtt()) return;
  m_controls.setCaption("lblRefAtt", AttributeTexts::name(m_context.model, i));
  m_context.RefAtt = static_cast<std::int16_t>(i);
  m_indicator = i;
  m_controls.setVisible("picIndicator", true);
  m_lamps.setIndicatorColor(StatusLamps::kRed);
  m_controls.setEnabled("cmdNext", true);
  changed();
}

std::vector<int> DirectAPresenter::finalGroup(int k) const {
  std::vector<int> atts;
  for (std::size_t i = 0; i < m_context.FinalAttGroup.size(); ++i) {
    if (m_context.FinalAttGroup[i] == k) atts.push_back(static_cast<int>(i));
  }
  return atts;
}

void DirectAPresenter::imgcmbTargetAtt_Click(int i) {
  if (m_step != 2) return;
  m_judgment.chooseTarget(i);
  changed();
}

void DirectAPresenter::txtWR_KeyPress(JudgmentPage::Box box, const TextBoxState& current,
                                      int keyAscii) {
  if (m_step != 2) return;
  m_judgment.keyPress(box, current, keyAscii);
  changed();
}

void DirectAPresenter::txtWR_KeyPress(JudgmentPage::Box box, int selStart, int selLength,
                                      int keyAscii) {
  if (m_step != 2) return;
  m_judgment.keyPress(box, selStart, selLength, keyAscii);
  changed();
}

bool DirectAPresenter::txtWR_KeyDown(JudgmentPage::Box box, int keyCode, bool shift) const {
  return m_judgment.keyDown(box, keyCode, shift);
}

void DirectAPresenter::txtWR_LostFocus(JudgmentPage::Box box) {
  if (m_step != 2) return;
  m_judgment.leaveBox(box);
  changed();
}

void DirectAPresenter::txtWR_SetText(JudgmentPage::Box box, const std::string& text) {
  if (m_step != 2) return;
  m_judgment.setBoxText(box, text);
  changed();
}

void DirectAPresenter::picHandle_Drag(int index, float x, float y) {
  if (m_step != 2) return;
  m_judgment.dragHandle(index, x, y);
  changed();
}

void DirectAPresenter::setConeArea(float side, float handleSize) {
  m_judgment.setArea(side, handleSize);
  changed();
}

bool DirectAPresenter::cmdEnter_Click() {
  if (m_step != 2) return false;
  const bool recorded = m_judgment.enterJudgment();
  changed();
  return recorded;
}

void DirectAPresenter::cmdReStart_Click() {
  if (m_step != 2 || !m_controls.enabled("cmdReStart")) return;
  m_judgment.restart();
  changed();
}

}  // namespace tnw
