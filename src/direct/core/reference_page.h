#pragma once

#include "direct/core/direct_a_shared.h"
#include "direct/core/ordering_page.h"
#include "direct/core/status_lamps.h"
#include "wizard/core/control_states.h"
#include "wizard/core/wizard_page.h"

// Std
#include <vector>

namespace tnw::direct {

// Step 1 of the direct method: the final order as boxes picO of attribute buttons
// cmdAttButtons, one of which the user picks as the reference attribute; the indicator
// picIndicator blinks on the chosen button and lblRefAtt shows its name.
class ReferencePage : public wizard::WizardPage {
 public:
  // The step this page is on.
  static constexpr int kStep = 1;

  // The page over the shared data and the order of step 0, blinking through `lamps`.
  ReferencePage(DirectAShared& shared, const OrderingPage& ordering, StatusLamps& lamps);

  // Entered by Next from the order: the final order is taken from step 0; a resumed result
  // chooses its earlier reference again, otherwise nothing is chosen and Next waits.
  void initializePage() override;
  // Left by Back for the order: no reference, the indicator hidden and Timer1 stopped.
  void cleanupPage() override;
  // The judgments come next.
  int nextId() const override { return kStep + 1; }
  // Complete once a reference is chosen (or resumed), which enables Next.
  bool isComplete() const override { return m_shared.usable && m_shared.buttons.cmdNext.enabled; }

  // cmdAttButtons_Click: attribute i chosen as the reference.
  void chooseReference(int i);
  // The attributes of final group k (1-based), the buttons in box picO(k - 1).
  std::vector<int> finalGroup(int k) const;
  // The attribute whose button carries the indicator (-1 when hidden).
  int indicatorAttribute() const { return m_indicator; }
  // The indicator picIndicator: visible while a reference is chosen.
  const wizard::LabelState& picIndicator() const { return m_picIndicator; }

 private:
  DirectAShared& m_shared;
  const OrderingPage& m_ordering;
  StatusLamps& m_lamps;
  wizard::LabelState m_picIndicator{{}, false};
  int m_indicator = -1;
};

}  // namespace tnw::direct
