#pragma once

#include "common/core/ui_services.h"
#include "selmethod/core/methods_page.h"
#include "selmethod/core/selmethod_events.h"
#include "wizard/core/wizard_presenter.h"

// Std
#include <string>
#include <vector>

namespace tnw {
struct WizardContext;
}  // namespace tnw

namespace tnw::selmethod {

// The method-selection step (frmTNWSelMethod) without widgets: a one-page wizard whose page is
// the list of methods; it reacts to the frame's buttons and raises the dialog's events. The
// dialog renders this state on every change.
class SelMethodPresenter : public wizard::WizardPresenter {
 public:
  // The only step.
  static constexpr int kMethodsStep = 0;
  // The dialog's title.
  static constexpr const char* kCaption = "Tarnel Wizard";
  // The status text sent to the host on loading.
  static constexpr const char* kLoadMessage =
      "Select a method to make value judgments between the attributes.";
  // The help context of the wizard's help topic.
  static constexpr int kHelpContext = 4005025;

  // A presenter reading context, showing help through ui and raising events on events.
  SelMethodPresenter(const WizardContext& context, UiServices& ui, SelMethodEvents& events);

  // Loading: fills the list, preselects the earlier result's method, sets the description
  // and sends the status text; Back and Finish are disabled.
  void Form_Load();
  // Activation: Back and Finish are disabled again.
  void Form_Activate();
  // The user selected list item index (-1 for none); the description does not follow.
  void lstMethods_Click(int index);
  // Next: asks for the selected method's dialog.
  void cmdNext_Click();
  // Cancel: asks the host to end the wizard without weights.
  void cmdCancel_Click();
  // Help: opens the host's help file at the wizard's topic.
  void cmdHelp_Click();
  // The help page of this dialog and the selection step's anchor on it.
  static HelpTopic helpTopic() { return {"selmethod", "selection"}; }

  // Shows the description of method index (0..4) in the two labels; other indexes do nothing.
  void ShowMethodDescription(int index);

  // The page of the dialog.
  const MethodsPage& methodsPage() const { return m_page; }
  // The items of lstMethods, in order.
  const std::vector<std::string>& methods() const { return m_page.methods(); }
  // The selected item of lstMethods (-1 for none).
  int selectedIndex() const { return m_page.selectedIndex(); }
  // The caption of lblSelectedMethodName.
  const std::string& selectedMethodName() const { return m_page.selectedMethodName(); }
  // The caption of lblDescription.
  const std::string& description() const { return m_page.description(); }
  // The help file the Help button opens: NorixDir & "\" & "NORIX.HLP".
  std::string helpFile() const;

 private:
  void disableBackAndFinish();

  const WizardContext& m_context;
  UiServices& m_ui;
  SelMethodEvents& m_events;
  MethodsPage m_page;
};

}  // namespace tnw::selmethod
