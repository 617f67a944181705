#pragma once

#include "wizard/core/wizard_dialog_factory.h"

// Std
#include <functional>

namespace tnw::direct {
class IntervalsFile;
}  // namespace tnw::direct
namespace tnw::tradeoffs {
class JudgmentsFile;
}  // namespace tnw::tradeoffs

namespace tnw {

class UiServices;

// The file forms the methods' dialogs save and load their judgments with (they must outlive the
// factory); a dialog without one does not offer Save and Load.
struct JudgmentFiles {
  // The trade-off judgments, as `tnwizard tradeoffs` reads them.
  const tradeoffs::JudgmentsFile* tradeOffs = nullptr;
  // The direct method's order, reference and intervals, as `tnwizard direct` reads them.
  const direct::IntervalsFile* direct = nullptr;
};

// Makes the wizard's Qt dialogs and releases them with deleteLater, so a dialog released from
// inside one of its own handlers lives until control is back in the event loop.
class WidgetDialogFactory : public WizardDialogFactory {
 public:
  // A factory whose dialogs show their messages, beeps, pointer and help through ui, and save
  // and load judgments with files.
  explicit WidgetDialogFactory(UiServices& ui, JudgmentFiles files = {});

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
  JudgmentFiles m_files;
};

}  // namespace tnw
