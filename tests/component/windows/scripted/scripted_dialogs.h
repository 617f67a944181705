#pragma once

#include "common/core/ui_services.h"
#include "wizard/core/wizard_dialog.h"

// Std
#include <memory>
#include <string>

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
class MessageWindow;
class ScriptedScenario;
class ScriptedTrace;
struct WizardContext;

// Makers of the three scripted dialogs, each defined beside its dialog, so that the factory does
// not include the presenters' headers together.

// A loaded scripted frmTNWSelMethod called name.
std::unique_ptr<WizardDialog> makeScriptedSelMethodDialog(
    std::string name, WizardContext& context, selmethod::SelMethodEvents& events, UiServices& ui,
    ScriptedScenario& scenario, MessageWindow& window, const ScriptedTrace& trace);
// A loaded scripted frmDirectA called name.
std::unique_ptr<WizardDialog> makeScriptedDirectDialog(std::string name, WizardContext& context,
                                                       direct::DirectAEvents& events,
                                                       UiServices& ui, ScriptedScenario& scenario,
                                                       MessageWindow& window,
                                                       const ScriptedTrace& trace);
// A loaded scripted frmTradeOffsA called name.
std::unique_ptr<WizardDialog> makeScriptedTradeOffsDialog(
    std::string name, WizardContext& context, tradeoffs::TradeOffsAEvents& events, UiServices& ui,
    ScriptedScenario& scenario, MessageWindow& window, const ScriptedTrace& trace);

}  // namespace tnw
