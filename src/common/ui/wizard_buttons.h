#pragma once

class QDialogButtonBox;
class QPushButton;
class QWidget;

namespace tnw {

// The buttons of a wizard's frame; a null one is left out.
struct WizardButtons {
  QPushButton* back = nullptr;    // cmdBack, "< &Back"
  QPushButton* next = nullptr;    // cmdNext, "&Next >"
  QPushButton* finish = nullptr;  // cmdFinish, "&Finish"
  QPushButton* cancel = nullptr;  // cmdCancel, "&Cancel"
  QPushButton* help = nullptr;    // cmdHelp or cmdTNWizardHelp, "&Help"
  QPushButton* print = nullptr;   // cmdPrint, "&Print"
};

// Lays the buttons out in one QDialogButtonBox, so that every dialog of the wizard shows them
// in the order the platform's guidelines give: on Windows "< Back", "Next >", "Finish",
// "Cancel", "Help" from the left, elsewhere Help at the left and the affirmative button where
// the platform wants it. Back and Next stay side by side in that order; captions, names and
// mnemonics stay the buttons' own. The box does not act on the buttons' roles.
QDialogButtonBox* makeWizardButtonBox(QWidget* parent, const WizardButtons& buttons);

}  // namespace tnw
