#pragma once

#include "common/core/ui_services.h"
#include "wizard/core/wizard_context.h"
#include "direct/core/direct_a_events.h"
#include "direct/core/direct_result.h"
#include "wizard/core/control_states.h"

// Std
#include <string>

namespace tnw::direct {

// What the pages of the direct-method dialog share: the wizard's data, the method's result, the
// user-interface services, the dialog's event listener, the frame's buttons and the controls
// more than one page writes.
struct DirectAShared {
  // The shared state over the wizard's data, the presenter's result and its frame buttons.
  DirectAShared(WizardContext& context, DirectResult& result, UiServices& ui, DirectAEvents& events,
                wizard::WizardButtons& buttons)
      : context(context), result(result), ui(ui), events(events), buttons(buttons) {}

  // The host's inputs and the model (read only by the method).
  WizardContext& context;
  // The order, reference and weight-ratio tables the pages work out.
  DirectResult& result;
  UiServices& ui;
  DirectAEvents& events;
  // The frame's buttons (Back, Next, Finish, Cancel, Help).
  wizard::WizardButtons& buttons;
  // The reference attribute's name above steps 1 and 2.
  wizard::LabelState lblRefAtt;
  // Whether the model has 1 to 31 attributes; otherwise only Back, Cancel and Help work.
  bool usable = false;
  // Whether the wizard resumes an earlier result.
  bool resume = false;

  // Shows a message box titled "NORIX" with the exclamation icon.
  void warn(const std::string& text) const {
    ui.messageBox(text, MessageIcon::Exclamation, "NORIX");
  }
};

}  // namespace tnw::direct
