#pragma once

#include "direct/core/direct_a_shared.h"
#include "direct/core/exact_weight_bounds.h"
#include "direct/core/ordering_page.h"
#include "direct/core/results_grid.h"
#include "wizard/core/wizard_page.h"

namespace tnw::direct {

// Step 3 of the direct method: the judgments as the grid gridTN of weight-ratio intervals,
// with the exact weight ranges they allow beside it; Finish exports them.
class ResultsPage : public wizard::WizardPage {
 public:
  // The step this page is on.
  static constexpr int kStep = 3;

  // The page over the shared data and the order of step 0 (for the number of attributes).
  ResultsPage(DirectAShared& shared, const OrderingPage& ordering);

  // Entered by Next from the judgments: fills the grid and computes the exact ranges; Back and
  // Finish are enabled, Next disabled.
  void initializePage() override;
  // The last step.
  int nextId() const override { return kNoNextPage; }
  // Complete while Finish is enabled.
  bool isComplete() const override { return m_shared.buttons.cmdFinish.enabled; }

  // The grid gridTN.
  const ResultsGrid& grid() const { return m_grid; }
  // The exact weight ranges shown beside gridTN.
  const ExactWeightBounds::Result& exactBounds() const { return m_exactBounds; }

 private:
  DirectAShared& m_shared;
  const OrderingPage& m_ordering;
  ResultsGrid m_grid;
  ExactWeightBounds::Result m_exactBounds;
};

}  // namespace tnw::direct
