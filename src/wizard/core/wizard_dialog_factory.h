#pragma once

#include "wizard/core/wizard_dialog.h"

// Std
#include <memory>

namespace tnw::selmethod {
class SelMethodEvents;
}  // namespace tnw::selmethod
namespace tnw::tradeoffs {
class TradeOffsAEvents;
}  // namespace tnw::tradeoffs

namespace tnw {

namespace direct {
class DirectAEvents;
}  // namespace direct
struct WizardContext;

// Makes and releases the component's dialogs. The Qt layer makes widgets; a headless host or a
// test makes its own. Each dialog reads and writes the given context and raises its events on
// the given sink; both outlive the dialog's use by the component.
class WizardDialogFactory {
 public:
  virtual ~WizardDialogFactory() = default;

  // A new method-selection dialog (frmTNWSelMethod), loaded; null if none can be made.
  virtual std::unique_ptr<WizardDialog> createSelMethod(WizardContext& context,
                                                        selmethod::SelMethodEvents& events) = 0;
  // A new direct-method dialog (frmDirectA), loaded; null if none can be made.
  virtual std::unique_ptr<WizardDialog> createDirectA(WizardContext& context,
                                                      direct::DirectAEvents& events) = 0;
  // A new trade-off dialog (frmTradeOffsA), loaded; null if none can be made.
  virtual std::unique_ptr<WizardDialog> createTradeOffsA(WizardContext& context,
                                                         tradeoffs::TradeOffsAEvents& events) = 0;
  // Takes a dialog the component is done with and destroys it once none of its own handlers
  // is running any more (the component may release a dialog from inside one of its events).
  virtual void release(std::unique_ptr<WizardDialog> dialog) = 0;
};

}  // namespace tnw
