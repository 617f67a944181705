#include "direct/core/scenario_player.h"

#include "common/core/recording_ui_services.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <algorithm>
#include <string>
#include <vector>

namespace tnw::direct {
namespace {

// Writes down every report of the player, one line each.
class TraceObserver : public ScenarioObserver {
 public:
  void orderPlaced(bool nextEnabled) override {
    lines.push_back(std::string("order ") + (nextEnabled ? "next" : "no next"));
  }
  void referenceChosen(int step, const std::string&) override {
    lines.push_back("reference, step " + std::to_string(step));
  }
  void stepPlayed(const ScenarioStep& step, const PlayedStep& played) override {
    lines.push_back(step.restart ? std::string("restart")
                                 : "target " + std::to_string(step.target) +
                                       (played.recorded ? " recorded" : " not recorded"));
  }
  void finishing(int step, bool finishEnabled) override {
    lines.push_back("finishing, step " + std::to_string(step) +
                    (finishEnabled ? ", Finish" : ", no Finish"));
  }

  std::vector<std::string> lines;
};

// Three attributes: the first alone in group 1, the other two sharing group 2.
DirectScenario threeAttributeRun(TextEntry entry) {
  DirectScenario s;
  s.order = std::vector<int>{1, 2, 2};
  s.reference = 0;
  s.steps = {{false, 1, "0.5", "0.8"}, {false, 2, "0.4", "0.7"}};
  s.entry = entry;
  return s;
}

// Whether the dialog asked for the method selection.
bool shownSelection(const test::RecordingDirectAEvents& events) {
  return std::find(events.log.begin(), events.log.end(), "ShowTNWSelMethod") != events.log.end();
}

class DirectScenarioPlayerTest : public ::testing::Test {
 protected:
  WizardContext m_context = test::makeContext(3);
  RecordingUiServices m_ui;
  test::RecordingDirectAEvents m_events;
  ScenarioPlayer m_player{m_context, m_ui, m_events};
  TraceObserver m_trace;

  void SetUp() override { m_player.load(); }
};

TEST_F(DirectScenarioPlayerTest, AFinishedRunReportsEveryStageAndHandsTheWeightsOver) {
  const PlayedScenario played = m_player.play(threeAttributeRun(TextEntry::Typed), m_trace);
  EXPECT_FALSE(played.error.has_value());
  EXPECT_EQ(m_trace.lines,
            (std::vector<std::string>{"order next", "reference, step 2", "target 1 recorded",
                                      "target 2 recorded", "finishing, step 3, Finish"}));
  ASSERT_EQ(played.steps.size(), 2u);
  EXPECT_EQ(played.steps[0].lowerText, "0.50");
  EXPECT_EQ(played.steps[1].upperText, "0.70");
  ASSERT_EQ(m_events.exports.size(), 1u);
  EXPECT_EQ(m_player.exported().Weights, m_events.exports[0].weights);
  const ScenarioOutcome outcome = m_player.outcome();
  EXPECT_EQ(outcome.step, 3);
  EXPECT_EQ(outcome.judged, (std::vector<bool>{true, true, true}));
  EXPECT_TRUE(outcome.complete);
}

TEST_F(DirectScenarioPlayerTest, TypedAndSetTextsOfValidRatiosGiveTheSameResult) {
  m_player.play(threeAttributeRun(TextEntry::Typed));
  WizardContext other = test::makeContext(3);
  RecordingUiServices ui;
  test::RecordingDirectAEvents events;
  ScenarioPlayer setting(other, ui, events);
  setting.load();
  setting.play(threeAttributeRun(TextEntry::Set));
  ASSERT_EQ(events.exports.size(), 1u);
  EXPECT_EQ(events.exports[0].weights, m_events.exports[0].weights);
  EXPECT_EQ(events.exports[0].weightsH, m_events.exports[0].weightsH);
  EXPECT_EQ(events.exports[0].weightsL, m_events.exports[0].weightsL);
}

TEST_F(DirectScenarioPlayerTest, TypingGoesThroughTheKeyFilterWhileSettingDoesNot) {
  DirectScenario typed = threeAttributeRun(TextEntry::Typed);
  typed.steps = {{false, 1, "-0.5", "0.8"}};
  typed.end = ScenarioEnd::Cancel;
  const PlayedScenario played = m_player.play(typed);
  ASSERT_EQ(played.steps.size(), 1u);
  EXPECT_EQ(played.steps[0].lowerText, "0.50");
  EXPECT_TRUE(played.steps[0].recorded);
  EXPECT_TRUE(played.steps[0].messages.empty());

  WizardContext other = test::makeContext(3);
  RecordingUiServices ui;
  test::RecordingDirectAEvents events;
  ScenarioPlayer setting(other, ui, events);
  setting.load();
  typed.entry = TextEntry::Set;
  const PlayedScenario set = setting.play(typed);
  ASSERT_EQ(set.steps.size(), 1u);
  EXPECT_FALSE(set.steps[0].recorded);
  EXPECT_FALSE(set.steps[0].messages.empty());
}

TEST_F(DirectScenarioPlayerTest, CancelUnloadsWithoutWeightsAndBackReturnsToTheSelection) {
  DirectScenario cancel = threeAttributeRun(TextEntry::Set);
  cancel.end = ScenarioEnd::Cancel;
  m_player.play(cancel, m_trace);
  EXPECT_TRUE(m_events.exports.empty());
  ASSERT_EQ(m_events.unloads.size(), 1u);
  EXPECT_FALSE(m_events.unloads[0].weightsDone);
  EXPECT_EQ(m_trace.lines.back(), "target 2 recorded");

  WizardContext other = test::makeContext(3);
  RecordingUiServices ui;
  test::RecordingDirectAEvents events;
  ScenarioPlayer back(other, ui, events);
  back.load();
  DirectScenario run = threeAttributeRun(TextEntry::Set);
  run.end = ScenarioEnd::Back;
  back.play(run);
  EXPECT_EQ(back.outcome().step, 0);
  EXPECT_TRUE(shownSelection(events));
  EXPECT_TRUE(events.exports.empty());
}

TEST_F(DirectScenarioPlayerTest, ARunOfOnlyAnEndOtherThanFinishStaysOnTheFirstStep) {
  DirectScenario run;
  run.end = ScenarioEnd::Back;
  const PlayedScenario played = m_player.play(run, m_trace);
  EXPECT_FALSE(played.error.has_value());
  EXPECT_TRUE(m_trace.lines.empty());
  EXPECT_TRUE(shownSelection(m_events));
}

TEST_F(DirectScenarioPlayerTest, AnOrderThatDoesNotFitTheModelStopsTheRunBeforeItsEnd) {
  DirectScenario run = threeAttributeRun(TextEntry::Typed);
  run.order = std::vector<int>{1, 2};
  const PlayedScenario played = m_player.play(run, m_trace);
  ASSERT_TRUE(played.error.has_value());
  EXPECT_EQ(*played.error, "\"order\" needs one group number per attribute");
  EXPECT_TRUE(played.steps.empty());
  EXPECT_TRUE(m_trace.lines.empty());
  EXPECT_TRUE(m_events.exports.empty());
  EXPECT_TRUE(m_events.unloads.empty());
}

}  // namespace
}  // namespace tnw::direct
