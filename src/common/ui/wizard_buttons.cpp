#include "common/ui/wizard_buttons.h"

// Qt
#include <QDialogButtonBox>
#include <QPushButton>
#include <QStyle>

namespace tnw {

QDialogButtonBox* makeWizardButtonBox(QWidget* parent, const WizardButtons& buttons) {
  auto* box = new QDialogButtonBox(Qt::Horizontal, parent);
  box->setObjectName(QStringLiteral("wizardButtons"));
  box->setCenterButtons(false);
  const auto add = [box](QPushButton* button, QDialogButtonBox::ButtonRole role) {
    if (button != nullptr) box->addButton(button, role);
  };
  // Back and Next go through the wizard side by side (an action role keeps their order on
  // every layout); Finish ends it with its weights, Cancel without them. Where the platform
  // puts the affirmative button first (Windows), Finish joins Back and Next after them.
  const bool windowsLayout = box->style()->styleHint(QStyle::SH_DialogButtonLayout, nullptr, box) ==
                             QDialogButtonBox::WinLayout;
  // The print button's role only places it: apart from the others, at the left.
  add(buttons.print, QDialogButtonBox::ResetRole);
  add(buttons.back, QDialogButtonBox::ActionRole);
  add(buttons.next, QDialogButtonBox::ActionRole);
  add(buttons.finish, windowsLayout ? QDialogButtonBox::ActionRole : QDialogButtonBox::AcceptRole);
  add(buttons.cancel, QDialogButtonBox::RejectRole);
  add(buttons.help, QDialogButtonBox::HelpRole);
  return box;
}

}  // namespace tnw
