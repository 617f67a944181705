#include "wizard/core/wizard_presenter.h"

namespace tnw::wizard {

bool WizardPresenter::advance() {
  if (m_pages.empty() || !page(m_step).isComplete()) return false;
  const int next = page(m_step).nextId();
  if (next < 0 || next >= stepCount()) return false;
  m_step = next;
  page(m_step).initializePage();
  return true;
}

bool WizardPresenter::retreat() {
  if (m_step <= 0 || m_step >= stepCount()) return false;
  page(m_step).cleanupPage();
  --m_step;
  page(m_step).revisitPage();
  return true;
}

}  // namespace tnw::wizard
