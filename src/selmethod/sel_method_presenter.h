#pragma once

#include "common/ui_services.h"
#include "selmethod/sel_method_events.h"

// Std
#include <string>
#include <vector>

namespace tnw {

struct WizardContext;

// The method-selection step (frmTNWSelMethod) without widgets: it holds what the dialog shows,
// reacts to its buttons and raises the dialog's events. The dialog renders this state.
class SelMethodPresenter {
 public:
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
  // and sends the status text.
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

  // Shows the description of method index (0..4) in the two labels; other indexes do nothing.
  void ShowMethodDescription(int index);

  // The items of lstMethods, in order.
  const std::vector<std::string>& methods() const { return m_methods; }
  // The selected item of lstMethods (-1 for none).
  int selectedIndex() const { return m_selectedIndex; }
  // The caption of lblSelectedMethodName.
  const std::string& selectedMethodName() const { return m_selectedMethodName; }
  // The caption of lblDescription.
  const std::string& description() const { return m_description; }
  // Whether cmdBack is enabled.
  bool backEnabled() const { return m_backEnabled; }
  // Whether cmdFinish is enabled.
  bool finishEnabled() const { return m_finishEnabled; }
  // The help file the Help button opens: NorixDir & "\" & "NORIX.HLP".
  std::string helpFile() const;

 private:
  const WizardContext& m_context;
  UiServices& m_ui;
  SelMethodEvents& m_events;
  std::vector<std::string> m_methods;
  int m_selectedIndex = -1;
  std::string m_selectedMethodName = "Selected method:";
  std::string m_description = "Description contents";
  bool m_backEnabled = true;
  bool m_finishEnabled = true;
};

}  // namespace tnw
