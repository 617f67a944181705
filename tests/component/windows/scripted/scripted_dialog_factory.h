#pragma once

#include "common/core/ui_services.h"
#include "wizard/core/wizard_dialog_factory.h"

// Std
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tnw {

class MessageWindow;
class ScriptedScenario;
class ScriptedTrace;

// Makes the scripted test dialogs and releases them from the message loop, never inside one of
// their own handlers.
class ScriptedDialogFactory : public WizardDialogFactory {
 public:
  // A factory whose dialogs play scenario, show messages through ui and act from window.
  ScriptedDialogFactory(ScriptedScenario& scenario, UiServices& ui, MessageWindow& window,
                        const ScriptedTrace& trace);
  // Destroys the dialogs released and not destroyed yet.
  ~ScriptedDialogFactory() override;

  // A new, loaded frmTNWSelMethod; throws std::runtime_error when no scenario is given.
  std::unique_ptr<WizardDialog> createSelMethod(WizardContext& context,
                                                selmethod::SelMethodEvents& events) override;
  // A new frmDirectA.
  std::unique_ptr<WizardDialog> createDirectA(WizardContext& context,
                                              direct::DirectAEvents& events) override;
  // A new frmTradeOffsA.
  std::unique_ptr<WizardDialog> createTradeOffsA(WizardContext& context,
                                                 tradeoffs::TradeOffsAEvents& events) override;
  // Traces "<name> released" and destroys the dialog from the message loop; never throws, as the
  // component releases its dialogs from its destructor.
  void release(std::unique_ptr<WizardDialog> dialog) noexcept override;

 private:
  std::string nextName(const std::string& form);
  // Makes room in m_released for one more dialog, so that release() never allocates.
  void reserveRelease();
  void destroyReleased() noexcept;

  ScriptedScenario& m_scenario;
  UiServices& m_ui;
  MessageWindow& m_window;
  const ScriptedTrace& m_trace;
  std::map<std::string, int> m_created;
  std::vector<std::unique_ptr<WizardDialog>> m_released;
  // Dialogs made and not released yet.
  std::size_t m_outstanding = 0;
  // Lets a queued destruction find out that the factory is gone.
  std::shared_ptr<ScriptedDialogFactory*> m_self;
};

}  // namespace tnw
