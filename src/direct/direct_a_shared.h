#pragma once

#include "common/ui_services.h"
#include "component/wizard_context.h"
#include "direct/control_registry.h"
#include "direct/direct_a_events.h"

namespace tnw {

// What the pages of the direct-method dialog share: the wizard's data, the user-interface
// services, the dialog's event listener and the dialog's named controls.
struct DirectAShared {
  WizardContext& context;
  UiServices& ui;
  DirectAEvents& events;
  ControlRegistry& controls;

  // Shows a message box titled "NORIX" with the exclamation icon.
  void warn(const std::string& text) const {
    ui.messageBox(text, MessageIcon::Exclamation, "NORIX");
  }
};

}  // namespace tnw
