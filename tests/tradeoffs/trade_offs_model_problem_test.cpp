// A model the trade-off method cannot honour ends the method on loading, with a message that
// names the attribute, before any judgment; nothing can be entered, fitted or exported.

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "model/model_check.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/core/tradeoffs_a_events.h"
#include "tradeoffs/core/tradeoffs_a_presenter.h"

// Std
#include <functional>
#include <limits>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

class CountingEvents : public TradeOffsAEvents {
 public:
  void ExportTradeOffsW(const std::string&, std::vector<double>&, std::vector<double>&,
                        std::vector<double>&) override {
    ++exports;
  }
  void SendMasseges(const std::string&) override {}
  void ShowTNWSelMethod() override {}
  void UnloadTNWizard(std::int16_t, bool weightsDone) override { unloadsDone += weightsDone; }

  int exports = 0;
  int unloadsDone = 0;
};

// Loads the presenter on model, then tries every way to an export: judgments, Next, Finish.
struct Attempt {
  explicit Attempt(const AttributeModel& model) {
    ctx.model = model;
    p.Form_Load();
    for (int i = 0; i < 8; ++i) {
      p.tsComparisonApproaches_Click(2);
      p.optPCVerbal_Click(i % 7);
      p.setScoreText(0, std::to_string(2 + i % 5));
      p.setScoreText(1, std::to_string(1 + (i * 3) % 7));
      p.cmdTradeOffEnter_Click();
    }
    p.cmdTradeOffClearAll_Click();
    p.cmdTradeOffEnter_Click();
    p.cmdNext_Click();
    p.cmdFinish_Click();
  }

  WizardContext ctx;
  RecordingUiServices ui;
  CountingEvents events;
  testing::SequenceRandomSource random{{0.5f}};
  TradeOffsAPresenter p{ctx, ui, events, random};
};

// The model of three sound attributes with one change to attribute "Att2" (index 1).
AttributeModel brokenSecond(const std::function<void(AttributeModel&)>& change) {
  AttributeModel m = testing::makeModel(3);
  m.AttName[1] = "Att2";
  change(m);
  return m;
}

void expectRefusedWith(const AttributeModel& model, const std::string& message) {
  const Attempt run(model);
  ASSERT_FALSE(run.ui.messages().empty());
  EXPECT_EQ(run.ui.messages().front().text, message);
  EXPECT_EQ(run.p.modelProblem(), message);
  EXPECT_EQ(run.p.fitError(), message);
  EXPECT_EQ(run.p.judgmentPage().TradeOffNo(), 0);
  EXPECT_FALSE(run.p.judgmentPage().controls().cmdTradeOffEnter.enabled);
  EXPECT_EQ(run.p.step(), TradeOffsAPresenter::kJudgmentStep);
  EXPECT_FALSE(run.p.cmdNext().enabled);
  EXPECT_FALSE(run.p.cmdFinish().enabled);
  EXPECT_EQ(run.events.exports, 0);
  EXPECT_EQ(run.events.unloadsDone, 0);
}

TEST(TradeOffsModelProblemTest, MoreThanThirtyOneAttributesEndTheMethodOnLoading) {
  for (const int numAtt : {32, 40, 32767}) {
    AttributeModel m = testing::makeModel(31);
    m.NumAtt = static_cast<std::int16_t>(numAtt);
    expectRefusedWith(m, "The current model has " + std::to_string(numAtt) +
                             " attributes. The wizard can only weigh from 1 to 31 attributes.");
  }
}

TEST(TradeOffsModelProblemTest, NoAttributesEndTheMethodOnLoading) {
  for (const int numAtt : {0, -1}) {
    AttributeModel m = testing::makeModel(0);
    m.NumAtt = static_cast<std::int16_t>(numAtt);
    expectRefusedWith(m, "The current model has " + std::to_string(numAtt) +
                             " attributes. The wizard can only weigh from 1 to 31 attributes.");
  }
}

TEST(TradeOffsModelProblemTest, PointCountsOutsideOneToElevenNameTheAttribute) {
  for (const int n : {0, -1}) {
    expectRefusedWith(
        brokenSecond([n](AttributeModel& m) { m.NumPoints[1] = static_cast<std::int16_t>(n); }),
        "The value function of the attribute \"Att2\" has no points.");
  }
  for (const int n : {12, 100}) {
    expectRefusedWith(
        brokenSecond([n](AttributeModel& m) { m.NumPoints[1] = static_cast<std::int16_t>(n); }),
        "The value function of the attribute \"Att2\" has more than 11 points.");
  }
}

TEST(TradeOffsModelProblemTest, NumbersThatAreNotFiniteNameTheAttributeAndThePoint) {
  const std::string point =
      "The value function of the attribute \"Att2\" cannot be evaluated: point 2 holds a number "
      "the wizard cannot use.";
  expectRefusedWith(brokenSecond([](AttributeModel& m) { m.PointScore[1][1] = kNaN; }), point);
  expectRefusedWith(brokenSecond([](AttributeModel& m) { m.PointValue[1][1] = kInf; }), point);
  expectRefusedWith(brokenSecond([](AttributeModel& m) { m.PointScore[1][1] = 1e300; }), point);
  const std::string range =
      "The score range of the attribute \"Att2\" has an end that is not a number the wizard can "
      "use.";
  expectRefusedWith(brokenSecond([](AttributeModel& m) { m.AttScoreLow[1] = kNaN; }), range);
  expectRefusedWith(brokenSecond([](AttributeModel& m) { m.AttScoreHigh[1] = -kInf; }), range);
}

TEST(TradeOffsModelProblemTest, AZeroWidthRangeAndSharedScoresNameTheAttribute) {
  expectRefusedWith(brokenSecond([](AttributeModel& m) {
                      m.AttScoreLow[1] = 5.0;
                      m.AttScoreHigh[1] = 5.0;
                    }),
                    "The score range of the attribute \"Att2\" has no width: both ends are 5.");
  expectRefusedWith(brokenSecond([](AttributeModel& m) {
                      m.NumPoints[1] = 3;
                      m.PointScore[1][2] = 10.0;
                      m.PointValue[1][2] = 1.0;
                    }),
                    "The value function of the attribute \"Att2\" cannot be evaluated: points 2 "
                    "and 3 share the score 10.");
}

TEST(TradeOffsModelProblemTest, ASoundModelHasNoProblemAndIsWeighed) {
  const AttributeModel m = testing::makeModel(3);
  EXPECT_EQ(valueModelProblem(m), std::nullopt);
  const Attempt run(m);
  EXPECT_EQ(run.p.modelProblem(), std::nullopt);
  EXPECT_TRUE(run.p.judgmentPage().controls().cmdTradeOffEnter.enabled);
}

}  // namespace
}  // namespace tnw::tradeoffs
