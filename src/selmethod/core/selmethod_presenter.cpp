#include "selmethod/core/selmethod_presenter.h"

#include "wizard/core/wizard_context.h"

namespace tnw::selmethod {

SelMethodPresenter::SelMethodPresenter(const WizardContext& context, UiServices& ui,
                                       SelMethodEvents& events)
    : m_context(context), m_ui(ui), m_events(events), m_page(context.model) {
  setCaption(kCaption);
  addPage(m_page);
}

void SelMethodPresenter::disableBackAndFinish() {
  buttons().cmdBack.enabled = false;
  buttons().cmdFinish.enabled = false;
}

void SelMethodPresenter::Form_Load() {
  disableBackAndFinish();
  setStep(kMethodsStep);
  m_page.initializePage();
  m_events.SendMasseges(kLoadMessage);
  changed();
}

void SelMethodPresenter::Form_Activate() {
  disableBackAndFinish();
  changed();
}

void SelMethodPresenter::lstMethods_Click(int index) {
  m_page.lstMethods_Click(index);
  changed();
}

void SelMethodPresenter::cmdNext_Click() {
  if (m_page.selectedIndex() == 0) {
    m_events.ShowTNWDirect();
  } else if (m_page.selectedIndex() == 1) {
    m_events.ShowTNWTradeOffsA();
  }
}

void SelMethodPresenter::cmdCancel_Click() { m_events.UnloadTNWizard(m_context.FileIndex, false); }

void SelMethodPresenter::cmdHelp_Click() {
  m_ui.showHelpTopic(helpFile(), kHelpContext, helpTopic());
}

void SelMethodPresenter::ShowMethodDescription(int index) {
  m_page.ShowMethodDescription(index);
  changed();
}

std::string SelMethodPresenter::helpFile() const { return m_context.NorixDir + "\\NORIX.HLP"; }

}  // namespace tnw::selmethod
