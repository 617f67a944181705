#pragma once

namespace tnw::wizard {

// One step of a wizard dialog, in the manner of QWizardPage: the page prepares itself when Next
// (or loading, for the first page) brings it up, undoes what it showed when Back leaves it, and
// names the step that Next leads to. A page holds its own controls' state and reads and writes
// only what its presenter hands it.
class WizardPage {
 public:
  // The value of nextId() on the last page.
  static constexpr int kNoNextPage = -1;

  virtual ~WizardPage() = default;

  // Prepares the page when it is entered forwards (by Next, or on loading for the first page).
  virtual void initializePage() = 0;
  // Undoes what the page showed when Back leaves it for the page before.
  virtual void cleanupPage() {}
  // Brings the page back when Back returns to it from the page after.
  virtual void revisitPage() {}
  // The step Next leads to, or kNoNextPage on the last page.
  virtual int nextId() const = 0;
  // Whether the page's data let the user go on (Next, or Finish on the last page).
  virtual bool isComplete() const = 0;
};

}  // namespace tnw::wizard
