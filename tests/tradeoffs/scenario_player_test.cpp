#include "tradeoffs/core/scenario_player.h"

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/core/tradeoffs_a_events.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <string>
#include <utility>
#include <vector>

namespace tnw::tradeoffs {
namespace {

// Records the events the dialog raises.
class RecordingEvents : public TradeOffsAEvents {
 public:
  void ExportTradeOffsW(const std::string&, std::vector<double>& Weights, std::vector<double>&,
                        std::vector<double>&) override {
    exports.push_back(Weights);
  }
  void SendMasseges(const std::string&) override {}
  void ShowTNWSelMethod() override { ++selMethod; }
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    unloads.push_back({fIndex, WeightsDone});
  }

  std::vector<std::vector<double>> exports;
  int selMethod = 0;
  std::vector<std::pair<std::int16_t, bool>> unloads;
};

// Writes down every report of the player, one line each.
class TraceObserver : public tradeoffs::TradeOffObserver {
 public:
  void judgmentEntered(const tradeoffs::TradeOffJudgment& j, bool entered) override {
    lines.push_back(std::to_string(j.first) + "," + std::to_string(j.second) +
                    (entered ? " entered" : " refused"));
  }
  void finishing(int step, const std::string& comment, bool finishEnabled) override {
    lines.push_back("finishing, step " + std::to_string(step) +
                    (finishEnabled ? ", Finish" : ", no Finish"));
    lastComment = comment;
  }

  std::vector<std::string> lines;
  std::string lastComment;
};

class TradeOffScenarioPlayerTest : public ::testing::Test {
 protected:
  void load(int numAtt) {
    m_ctx.model = testing::makeModel(numAtt);
    m_ctx.FileIndex = 3;
    m_player = std::make_unique<tradeoffs::TradeOffScenarioPlayer>(m_ctx, m_ui, m_events, m_random);
    m_player->load();
  }

  // Consistent numerical judgments of three attributes weighted about 3 : 2 : 1, each pair both
  // ways round, so that every exchange goes through the third attribute.
  static std::vector<tradeoffs::TradeOffJudgment> consistentJudgments() {
    return {{0, 1, {2, 5, 4, 2}, 0}, {1, 0, {5, 2, 2, 4}, 0}, {0, 2, {2, 8, 4, 2}, 0},
            {2, 0, {8, 2, 2, 4}, 0}, {1, 2, {2, 6, 4, 2}, 0}, {2, 1, {6, 2, 2, 4}, 0}};
  }

  WizardContext m_ctx;
  RecordingUiServices m_ui;
  RecordingEvents m_events;
  testing::SequenceRandomSource m_random{{0.1f, 0.7f, 0.4f, 0.3f, 0.9f, 0.2f}};
  std::unique_ptr<tradeoffs::TradeOffScenarioPlayer> m_player;
  TraceObserver m_trace;
};

TEST_F(TradeOffScenarioPlayerTest, AFinishedRunEntersEveryPairFitsAndHandsTheWeightsOver) {
  load(3);
  m_player->play({consistentJudgments(), ScenarioEnd::Finish}, m_trace);
  EXPECT_EQ(m_trace.lines,
            (std::vector<std::string>{"0,1 entered", "1,0 entered", "0,2 entered", "2,0 entered",
                                      "1,2 entered", "2,1 entered", "finishing, step 1, Finish"}));
  const tradeoffs::TradeOffOutcome outcome = m_player->outcome();
  EXPECT_FALSE(outcome.fitError.has_value());
  EXPECT_EQ(m_trace.lastComment, outcome.comment);
  EXPECT_FALSE(outcome.comment.empty());
  ASSERT_EQ(outcome.weights.size(), 3u);
  ASSERT_EQ(m_events.exports.size(), 1u);
  EXPECT_EQ(m_events.exports[0].size(), 3u);
  ASSERT_EQ(m_events.unloads.size(), 1u);
  EXPECT_TRUE(m_events.unloads[0].second);
}

TEST_F(TradeOffScenarioPlayerTest, AnExchangeOfTheOnlyTwoAttributesIsRefusedAsInTheDialog) {
  load(2);
  m_player->play({{{0, 1, {2, 5, 4, 2}, 0}, {1, 0, {5, 2, 2, 4}, 0}}, ScenarioEnd::Cancel},
                 m_trace);
  EXPECT_EQ(m_trace.lines, (std::vector<std::string>{"0,1 entered", "1,0 refused"}));
  EXPECT_TRUE(m_events.exports.empty());
  ASSERT_EQ(m_events.unloads.size(), 1u);
  EXPECT_FALSE(m_events.unloads[0].second);
}

TEST_F(TradeOffScenarioPlayerTest, BackReturnsToTheSelectionWithoutFitting) {
  load(3);
  m_player->play({consistentJudgments(), ScenarioEnd::Back}, m_trace);
  EXPECT_EQ(m_events.selMethod, 1);
  EXPECT_EQ(m_trace.lines.size(), 6u);
  EXPECT_TRUE(m_events.exports.empty());
  EXPECT_TRUE(m_events.unloads.empty());
}

TEST_F(TradeOffScenarioPlayerTest, FinishIsNotPressedWhenTheFitCannotBeCompleted) {
  load(3);
  m_player->play({{}, ScenarioEnd::Finish}, m_trace);
  ASSERT_TRUE(m_player->outcome().fitError.has_value());
  EXPECT_EQ(m_trace.lines.size(), 1u);
  EXPECT_TRUE(m_events.exports.empty());
  EXPECT_TRUE(m_events.unloads.empty());
}

}  // namespace
}  // namespace tnw::tradeoffs
