#pragma once

#include "wizard/core/control_states.h"
#include "wizard/core/wizard_page.h"

// Std
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tnw::wizard {

// What the presenters of the wizard's dialogs have in common, so that a view binds to each the
// same way: the steps, numbered from 0, each a WizardPage; the caption; the frame's buttons as
// typed states; and one change signal, called after every operation that changed what a view
// shows. Operations are the dialog's handlers, named after them (cmdNext_Click, ...).
class WizardPresenter {
 public:
  // What is called after every change of state (the view renders again).
  using ChangeListener = std::function<void()>;

  virtual ~WizardPresenter() = default;

  // Sets (or, with null, removes) the change listener.
  void setChangeListener(ChangeListener listener) { m_listener = std::move(listener); }

  // The step on show, from 0.
  int step() const { return m_step; }
  // The number of steps.
  int stepCount() const { return static_cast<int>(m_pages.size()); }
  // The dialog's caption.
  const std::string& caption() const { return m_caption; }
  // The buttons of the wizard's frame.
  const ButtonState& cmdBack() const { return m_buttons.cmdBack; }
  const ButtonState& cmdNext() const { return m_buttons.cmdNext; }
  const ButtonState& cmdFinish() const { return m_buttons.cmdFinish; }
  const ButtonState& cmdCancel() const { return m_buttons.cmdCancel; }
  const ButtonState& cmdHelp() const { return m_buttons.cmdHelp; }

 protected:
  WizardPresenter() = default;
  WizardPresenter(const WizardPresenter&) = delete;
  WizardPresenter& operator=(const WizardPresenter&) = delete;

  // Adds the next step's page; the presenter keeps a reference, so the page must outlive it.
  void addPage(WizardPage& page) { m_pages.push_back(&page); }
  // The page of a step (0 to stepCount() - 1).
  WizardPage& page(int step) const { return *m_pages.at(static_cast<std::size_t>(step)); }
  // Moves to a step without entering or leaving any page.
  void setStep(int step) { m_step = step; }
  // Next: when the page on show is complete and names a next page, that page becomes the step
  // and is initialised. Returns whether the step changed.
  bool advance();
  // Back: the page on show is cleaned up and the step before it (the steps run in order) is
  // revisited. Returns whether the step changed (false on the first step).
  bool retreat();

  // Sets the caption.
  void setCaption(std::string caption) { m_caption = std::move(caption); }
  // The frame's buttons, for the presenter to set.
  WizardButtons& buttons() { return m_buttons; }
  // Tells the listener that the state changed.
  void changed() const {
    if (m_listener) m_listener();
  }

 private:
  std::vector<WizardPage*> m_pages;
  ChangeListener m_listener;
  WizardButtons m_buttons;
  std::string m_caption;
  int m_step = 0;
};

}  // namespace tnw::wizard
