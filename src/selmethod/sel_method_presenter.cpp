#include "selmethod/sel_method_presenter.h"

#include "component/wizard_context.h"

// Std
#include <array>

namespace tnw {

namespace {

struct MethodDescription {
  const char* name;
  const char* text;
};

// The description routine knows five methods; the list offers only the first two. Index 1 is
// described as the rating technique although the list calls it "TradeOffs": kept as it is.
constexpr std::array<MethodDescription, 5> kDescriptions = {{
    {"Direct:", "Give attribute weights directly"},
    {"MAVT:", "Elict attribute weights by Simple Multiple Attribute Rating Technique"},
    {"SWING:", "Elict attribute weights by SWING"},
    {"Pairwise:", "Elict attribute weights by Pairwise Comparison Matrices"},
    {"TradeOffs_A:",
     "Elict attribute weights by numerical trade-off between two random alternatives. The "
     "weights will be infered by multi-linear regression."},
}};

}  // namespace

SelMethodPresenter::SelMethodPresenter(const WizardContext& context, UiServices& ui,
                                       SelMethodEvents& events)
    : m_context(context), m_ui(ui), m_events(events) {}

void SelMethodPresenter::Form_Load() {
  m_backEnabled = false;
  m_finishEnabled = false;
  m_methods = {"Direct", "TradeOffs"};
  // "MAVT_DIRECT" and anything unknown select Direct; the match is exact and case-sensitive.
  m_selectedIndex = m_context.model.PrevTNType == "MAVT_TRADEOFFS" ? 1 : 0;
  ShowMethodDescription(m_selectedIndex);
  m_events.SendMasseges(kLoadMessage);
}

void SelMethodPresenter::Form_Activate() {
  m_backEnabled = false;
  m_finishEnabled = false;
}

void SelMethodPresenter::lstMethods_Click(int index) {
  const bool inList = index >= 0 && index < static_cast<int>(m_methods.size());
  m_selectedIndex = inList ? index : -1;
}

void SelMethodPresenter::cmdNext_Click() {
  if (m_selectedIndex == 0) {
    m_events.ShowTNWDirect();
  } else if (m_selectedIndex == 1) {
    m_events.ShowTNWTradeOffsA();
  }
}

void SelMethodPresenter::cmdCancel_Click() { m_events.UnloadTNWizard(m_context.FileIndex, false); }

void SelMethodPresenter::cmdHelp_Click() { m_ui.showHelp(helpFile(), kHelpContext); }

void SelMethodPresenter::ShowMethodDescription(int index) {
  if (index < 0 || index >= static_cast<int>(kDescriptions.size())) return;
  const MethodDescription& d = kDescriptions[static_cast<std::size_t>(index)];
  m_selectedMethodName = d.name;
  m_description = d.text;
}

std::string SelMethodPresenter::helpFile() const { return m_context.NorixDir + "\\NORIX.HLP"; }

}  // namespace tnw
