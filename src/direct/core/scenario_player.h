#pragma once

#include "common/core/ui_services.h"
#include "direct/core/direct_a_presenter.h"
#include "direct/core/scenario.h"

// Std
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tnw::direct {

// What one judgment step left on the dialog.
struct PlayedStep {
  // The message boxes shown during the step, in order.
  std::vector<std::string> messages;
  // The texts of the two ratio boxes afterwards.
  std::string lowerText;
  std::string upperText;
  // The lit status lamp (None while none is lit).
  JudgmentState status = JudgmentState::None;
  // Whether Enter recorded the judgment.
  bool recorded = false;
  // Why the lit lamp is "Inconsistent" or "Invalid" (empty text while neither is lit).
  JudgmentDiagnosis::Result diagnosis;
};

// What playing a scenario left on the way: the messages and each step.
struct PlayedScenario {
  // Whether the dialog can weigh the model; when it cannot, error is the message it showed.
  bool usable = true;
  // Why the scenario could not be played as written; the rest is then as far as it came.
  std::optional<std::string> error;
  // The message boxes shown before the first judgment step (on entry, on choosing).
  std::vector<std::string> entryMessages;
  // The earlier result's reference attribute, when it was kept instead of the scenario's.
  std::optional<int> keptReference;
  // Each judgment step.
  std::vector<PlayedStep> steps;
  // The message boxes shown by the run's end.
  std::vector<std::string> endMessages;
};

// The method's state after a run: where the dialog stands and the result it holds.
struct ScenarioOutcome {
  // The step the dialog is on (WizardStep).
  int step = 0;
  // The final importance order and the reference attribute.
  std::int16_t finalGroupCount = 0;
  std::vector<std::int16_t> finalAttGroup;
  std::int16_t refAtt = 0;
  // The weight table: lower, middle and upper weights.
  std::vector<double> lower;
  std::vector<double> middle;
  std::vector<double> upper;
  // Whether each attribute was judged, and whether every one was.
  std::vector<bool> judged;
  bool complete = false;
  // The results step's grid and exact weight ranges (empty before that step).
  ResultsGrid grid;
  ExactWeightBounds::Result exactBounds;
};

// Types text into a box key by key, as a user does: the box is emptied first and each character
// is pressed where the box's caret then is.
void typeKeyByKey(DirectAPresenter& presenter, JudgmentPage::Box box, const std::string& text);

// What a player reports while it plays, for a trace; every function does nothing by default.
class ScenarioObserver {
 public:
  virtual ~ScenarioObserver() = default;
  // The order was placed; whether Next is enabled now.
  virtual void orderPlaced(bool /*nextEnabled*/) {}
  // The reference was chosen and Next pressed: the step and the caption now.
  virtual void referenceChosen(int /*step*/, const std::string& /*caption*/) {}
  // One step of the scenario was played.
  virtual void stepPlayed(const ScenarioStep& /*step*/, const PlayedStep& /*played*/) {}
  // Next was pressed before Finish: the step now and whether Finish is enabled.
  virtual void finishing(int /*step*/, bool /*finishEnabled*/) {}
};

// Plays direct-method scenarios through the dialog's presenter as a user would: the order
// dragged into the groups, the reference chosen, each step's target chosen and texts entered,
// the boxes left and Enter pressed, then the run's end. The one place that drives the presenter
// for a scenario, for the command line and for the scripted test dialogs.
class ScenarioPlayer {
 public:
  // A player over the wizard's data; ui shows the messages, events take the export.
  ScenarioPlayer(WizardContext& context, UiServices& ui, DirectAEvents& events);
  ScenarioPlayer(const ScenarioPlayer&) = delete;
  ScenarioPlayer& operator=(const ScenarioPlayer&) = delete;

  // Loads the dialog as it opens (Form_Load).
  void load();
  // The dialog's caption.
  const std::string& caption() const;
  // Plays scenario on the loaded dialog, reporting to observer.
  PlayedScenario play(const DirectScenario& scenario, ScenarioObserver& observer);
  // Plays scenario on the loaded dialog.
  PlayedScenario play(const DirectScenario& scenario);
  // The weights the last Finish handed over, as the host's handler left them.
  const DirectExport::Weights& exported() const;
  // The method's state now; reads the wizard's data, so only while the wizard is open.
  ScenarioOutcome outcome() const;

 private:
  // Forwards every request to the given services and keeps the message texts.
  class MessageLog : public UiServices {
   public:
    explicit MessageLog(UiServices& ui) : m_ui(ui) {}
    void messageBox(const std::string& text, MessageIcon icon, const std::string& title) override;
    void beep() override { m_ui.beep(); }
    void setBusy(bool busy) override { m_ui.setBusy(busy); }
    void showHelp(const std::string& helpFile, int context) override {
      m_ui.showHelp(helpFile, context);
    }
    void showHelpTopic(const std::string& helpFile, int context, const HelpTopic& topic) override {
      m_ui.showHelpTopic(helpFile, context, topic);
    }
    ScreenSize screenSize() const override { return m_ui.screenSize(); }
    // The texts shown so far.
    const std::vector<std::string>& texts() const { return m_texts; }
    // The texts shown since the first `from`.
    std::vector<std::string> since(std::size_t from) const;

   private:
    UiServices& m_ui;
    std::vector<std::string> m_texts;
  };

  void chooseOrderAndReference(const DirectScenario& scenario, ScenarioObserver& observer);
  void placeOrder(const std::vector<int>& order);
  void enterText(JudgmentPage::Box box, const std::string& text, TextEntry entry);
  bool judge(const ScenarioStep& step, TextEntry entry);
  PlayedStep playStep(const ScenarioStep& step, TextEntry entry);
  void end(ScenarioEnd how, ScenarioObserver& observer);

  MessageLog m_log;
  DirectAPresenter m_presenter;
  // The first message of the next play's entry messages.
  std::size_t m_entryFrom = 0;
};

}  // namespace tnw::direct
