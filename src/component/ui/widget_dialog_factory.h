#pragma once

#include "wizard/core/wizard_dialog_factory.h"

// Std
#include <functional>

namespace tnw {

class UiServices;

// Makes the wizard's Qt dialogs and releases them with deleteLater, so a dialog released from
// inside one of its own handlers lives until control is back in the event loop.
class WidgetDialogFactory : public WizardDialogFactory {
 public:
  // A factory whose dialogs show their messages, beeps, pointer and help through ui.
  explicit WidgetDialogFactory(UiServices& ui);

  // A new frmTNWSelMethod; null without a QApplication.
  std::unique_ptr<WizardDialog> createSelMethod(WizardContext& context,
                                                selmethod::SelMethodEvents& events) override;
  // A new frmDirectA, loaded; null without a QApplication.
  std::unique_ptr<WizardDialog> createDirectA(WizardContext& context,
                                              direct::DirectAEvents& events) override;
  // A new frmTradeOffsA; null without a QApplication.
  std::unique_ptr<WizardDialog> createTradeOffsA(WizardContext& context,
                                                 tradeoffs::TradeOffsAEvents& events) override;
  // Hides nothing and destroys the dialog once control is back in the event loop.
  void release(std::unique_ptr<WizardDialog> dialog) override;

  // Runs work once control is back in the event loop (at once without an application).
  static void runLater(std::function<void()> work);

 private:
  bool haveApplication() const;

  UiServices& m_ui;
};

}  // namespace tnw
