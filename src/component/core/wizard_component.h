#pragma once

#include "common/core/ui_services.h"
#include "component/core/tnw_mavt_events.h"
#include "wizard/core/wizard_context.h"
#include "wizard/core/wizard_dialog.h"
#include "wizard/core/wizard_dialog_factory.h"
#include "direct/core/direct_a_events.h"
#include "selmethod/core/selmethod_events.h"
#include "tradeoffs/core/tradeoffs_a_events.h"

// Std
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tnw {

// The component class TNW_MAVT without any user-interface toolkit: it owns the wizard's data and
// its three dialogs (made by a factory), moves the user from one dialog to the next and relays
// the dialogs' results and messages to the host. The Qt TNW_MAVT wraps it with Qt dialogs; a
// headless host or a test gives it a factory of its own.
class WizardComponent {
 public:
  // Reads the host's model file into the model; reports a file it cannot open through ui.
  using ModelReader = std::function<void(const std::string& PathAndFileName, AttributeModel& model,
                                         UiServices& ui)>;

  // A component whose dialogs come from factory; readModel reads the model file.
  WizardComponent(WizardDialogFactory& factory, UiServices& ui, ModelReader readModel);
  // Releases the dialogs that still exist (through the factory, so none dies in its handler).
  ~WizardComponent();
  WizardComponent(const WizardComponent&) = delete;
  WizardComponent& operator=(const WizardComponent&) = delete;

  // Sets the host's listener for the four events; null drops them.
  void setEvents(TnwMavtEvents* events) { m_events = events; }

  // Stores the three values and reads the model file PathAndFileName, every time it is called.
  void GetCurFileData(const std::string& NorixDir, std::int16_t FileIndex,
                      const std::string& PathAndFileName);
  // Shows the method-selection dialog: makes, centres and shows it the first time, afterwards
  // only makes it visible again.
  void ShowTNWizard();
  // Hides every dialog that exists and releases all three.
  void UnloadTNWizard();

  // Ends the wizard after one of its dialogs' event handlers failed with an exception: shows
  // message in a "NORIX" message box with the exclamation icon, hides and releases every dialog
  // and raises UnloadTNWizard(FileIndex, false). Nothing it calls can make it throw.
  void endAfterFailure(const std::string& message) noexcept;

  // The data this wizard shares between its dialogs.
  WizardContext& context() { return m_context; }
  const WizardContext& context() const { return m_context; }
  // The dialogs as they are now (null when not made or released).
  WizardDialog* selMethod() const { return mSelMethod.get(); }
  WizardDialog* directA() const { return mDirectA.get(); }
  WizardDialog* tradeOffsA() const { return mTNWTradeOffsA.get(); }

 private:
  class SelMethodSink;
  class DirectASink;
  class TradeOffsASink;
  enum class Slot { SelMethod, DirectA, TradeOffsA };

  void mSelMethod_ShowTNWDirect();
  void mSelMethod_ShowTNWTradeOffsA();
  void mDirectA_ShowTNWSelMethod();
  void mTNWTradeOffsA_ShowTNWSelMethod();
  void mDirectA_UnloadDirectA();
  void relayUnloadTNWizard(std::int16_t fIndex, bool WeightsDone);
  void relaySendMasseges(const std::string& Msg);
  void relayExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                           std::vector<double>& Weights, std::vector<double>& WeightsH,
                           std::vector<double>& WeightsL);
  void relayExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                             std::vector<double>& WeightsH, std::vector<double>& WeightsL);

  std::unique_ptr<WizardDialog>& field(Slot slot);
  bool create(Slot slot);
  void center(WizardDialog& dialog);
  void hide(Slot slot);
  void release(Slot slot);
  void runWhenSelMethodHidden();

  WizardDialogFactory& m_factory;
  UiServices& m_ui;
  ModelReader m_readModel;
  TnwMavtEvents* m_events = nullptr;
  WizardContext m_context;
  std::unique_ptr<SelMethodSink> m_selMethodSink;
  std::unique_ptr<DirectASink> m_directASink;
  std::unique_ptr<TradeOffsASink> m_tradeOffsASink;
  std::unique_ptr<WizardDialog> mSelMethod;
  std::unique_ptr<WizardDialog> mDirectA;
  std::unique_ptr<WizardDialog> mTNWTradeOffsA;
  // What follows the modal show of the selection dialog, run when that dialog is next hidden
  // or released (the modal show "returns" then).
  std::function<void()> m_whenSelMethodHidden;
  // Set while endAfterFailure runs: a failure on the way out ends nothing twice.
  bool m_ending = false;
};

}  // namespace tnw
