#include "tradeoffs/core/tradeoffs_a_presenter.h"

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/core/tradeoffs_a_events.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

// Records every event the dialog raises.
class RecordingEvents : public TradeOffsAEvents {
 public:
  void ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                        std::vector<double>& WeightsH, std::vector<double>& WeightsL) override {
    exports.push_back({TNType, Weights, WeightsH, WeightsL, &Weights == &WeightsL});
  }
  void SendMasseges(const std::string& Msg) override { messages.push_back(Msg); }
  void ShowTNWSelMethod() override { ++selMethod; }
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    unloads.push_back({fIndex, WeightsDone});
  }

  struct Export {
    std::string type;
    std::vector<double> weights, weightsH, weightsL;
    bool sameArray;
  };
  std::vector<Export> exports;
  std::vector<std::string> messages;
  int selMethod = 0;
  std::vector<std::pair<std::int16_t, bool>> unloads;
};

class TradeOffsAPresenterTest : public ::testing::Test {
 protected:
  void load(int numAtt) {
    m_ctx.model = testing::makeModel(numAtt);
    m_ctx.FileIndex = 3;
    m_ctx.NorixDir = "C:\\Norix";
    m_p = std::make_unique<TradeOffsAPresenter>(m_ctx, m_ui, m_events, m_random);
    m_p->setChangeListener([this] { ++m_changes; });
    m_p->Form_Load();
  }
  // Records every needed trade-off as a verbal judgment on varied scores of A.
  void enterVerbalJudgments() {
    for (int i = 0; i < m_p->judgmentPage().TradeOffsNeeded(); ++i) {
      m_p->tsComparisonApproaches_Click(2);
      m_p->optPCVerbal_Click(i % 7);
      m_p->setScoreText(0, std::to_string(2 + i % 5));
      m_p->setScoreText(1, std::to_string(1 + (i * 3) % 7));
      m_p->cmdTradeOffEnter_Click();
    }
  }

  WizardContext m_ctx;
  RecordingUiServices m_ui;
  RecordingEvents m_events;
  testing::SequenceRandomSource m_random{{0.1f, 0.7f, 0.4f, 0.3f, 0.9f, 0.2f}};
  std::unique_ptr<TradeOffsAPresenter> m_p;
  int m_changes = 0;
};

TEST_F(TradeOffsAPresenterTest, LoadShowsTheJudgmentPageAndSendsTheInstruction) {
  load(3);
  EXPECT_EQ(m_p->step(), TradeOffsAPresenter::kJudgmentStep);
  EXPECT_EQ(std::string(TradeOffsAPresenter::kCaption), "Tarnel Wizard");
  EXPECT_EQ(m_p->cmdBack().caption, "< &Back");
  EXPECT_EQ(m_p->cmdNext().caption, "&Next >");
  EXPECT_EQ(m_p->cmdFinish().caption, "&Finish");
  EXPECT_FALSE(m_p->cmdFinish().enabled);
  EXPECT_EQ(m_p->cmdPrint().caption, "&Print");
  EXPECT_EQ(m_p->lblInstruction().caption,
            " Give your preference between the two selected criteria.");
  EXPECT_EQ(m_events.messages,
            (std::vector<std::string>{" Give your preference between the two selected criteria."}));
  EXPECT_EQ(m_p->weights().CloseWeights.size(), 3u);
  EXPECT_EQ(m_changes, 1);
}

TEST_F(TradeOffsAPresenterTest, NextRunsTheRegressionAndFillsTheResultsPage) {
  load(3);
  enterVerbalJudgments();
  m_p->cmdNext_Click();
  EXPECT_EQ(m_p->step(), TradeOffsAPresenter::kResultsStep);
  EXPECT_TRUE(m_p->cmdFinish().enabled);
  EXPECT_FALSE(m_p->cmdNext().enabled);
  EXPECT_FALSE(m_p->fitError().has_value());
  EXPECT_EQ(m_p->record().NumObs, 6);
  EXPECT_EQ(m_p->resultsPage().gridOverallRegression().text(4, 1), "6");
  EXPECT_EQ(m_p->resultsPage().gridWeights().rows(), 4);
  EXPECT_EQ(m_p->resultsPage().chartKey(), "HLCa");
  EXPECT_EQ(m_p->resultsPage().txtComments().text.rfind("Consistency index is ", 0), 0u);
}

TEST_F(TradeOffsAPresenterTest, FinishExportsTheCloseEstimatesTwiceAndNeverTheLowOnes) {
  load(3);
  enterVerbalJudgments();
  m_p->cmdNext_Click();
  m_p->cmdFinish_Click();
  ASSERT_EQ(m_events.exports.size(), 1u);
  const auto& e = m_events.exports[0];
  EXPECT_EQ(e.type, "MAVT_TRADEOFFS");
  EXPECT_EQ(e.weights, m_p->weights().CloseWeights);
  EXPECT_EQ(e.weightsL, m_p->weights().CloseWeights);
  EXPECT_EQ(e.weightsH, m_p->weights().UpperWeights);
  EXPECT_NE(e.weightsL, m_p->weights().LowerWeights);
  EXPECT_TRUE(e.sameArray);
  ASSERT_EQ(m_events.unloads.size(), 1u);
  EXPECT_EQ(m_events.unloads[0], (std::pair<std::int16_t, bool>{3, true}));
}

TEST_F(TradeOffsAPresenterTest, CancelOnEitherPageUnloadsWithoutAnyExport) {
  load(3);
  m_p->cmdCancel_Click();
  enterVerbalJudgments();
  m_p->cmdNext_Click();
  m_p->cmdCancel_Click();
  EXPECT_TRUE(m_events.exports.empty());
  ASSERT_EQ(m_events.unloads.size(), 2u);
  EXPECT_EQ(m_events.unloads[0], (std::pair<std::int16_t, bool>{3, false}));
  EXPECT_EQ(m_events.unloads[1], (std::pair<std::int16_t, bool>{3, false}));
}

TEST_F(TradeOffsAPresenterTest, BackOnTheFirstStepReturnsToMethodSelection) {
  load(3);
  m_p->cmdBack_Click();
  EXPECT_EQ(m_events.selMethod, 1);
}

TEST_F(TradeOffsAPresenterTest, BackOnTheResultsPageStartsTheJudgmentsAgain) {
  load(3);
  enterVerbalJudgments();
  m_p->cmdNext_Click();
  m_p->cmdBack_Click();
  EXPECT_EQ(m_events.selMethod, 0);
  EXPECT_EQ(m_p->step(), TradeOffsAPresenter::kJudgmentStep);
  EXPECT_TRUE(m_p->cmdNext().enabled);
  EXPECT_TRUE(m_p->judgmentPage().controls().cmdTradeOffEnter.enabled);
  EXPECT_EQ(m_p->judgmentPage().TradeOffNo(), 0);
  EXPECT_EQ(m_p->judgmentPage().FirstAttIndex(), 0);
  EXPECT_EQ(m_p->judgmentPage().SecondAttIndex(), 1);
  EXPECT_EQ(m_p->judgmentPage().controls().labPCThisNum.caption, "1");
}

TEST_F(TradeOffsAPresenterTest, HelpOpensNorixHlpAtTheWizardsContext) {
  load(2);
  m_p->cmdTNWizardHelp_Click();
  EXPECT_EQ(m_ui.helpFile(), "C:\\Norix\\NORIX.HLP");
  EXPECT_EQ(m_ui.helpContext(), 4005025);
}

TEST_F(TradeOffsAPresenterTest, ResultTabsSwitchTheTwoPanels) {
  load(2);
  EXPECT_TRUE(m_p->picWeightEstVisible());
  m_p->tsTabsW_Click(2);
  EXPECT_FALSE(m_p->picWeightEstVisible());
  EXPECT_TRUE(m_p->picRegStatusVisible());
  m_p->tsTabsW_Click(3);
  EXPECT_TRUE(m_p->picRegStatusVisible());
  m_p->tsComparisonApproaches_Click(2);
  EXPECT_EQ(m_p->judgmentPage().controls().tsComparisonApproaches, 2);
  m_p->tsComparisonApproaches_Click(5);
  EXPECT_EQ(m_p->judgmentPage().controls().tsComparisonApproaches, 2);
}

TEST_F(TradeOffsAPresenterTest, TwoAttributeNumericalFitEndsInAMessageAndFinishExportsNothing) {
  load(2);
  m_p->weights().CloseWeights = {0.7, 0.3};
  m_p->cmdTradeOffEnter_Click();
  m_p->cmdTradeOffEnter_Click();
  m_p->cmdNext_Click();
  ASSERT_TRUE(m_p->fitError().has_value());
  ASSERT_FALSE(m_ui.messages().empty());
  EXPECT_EQ(m_ui.messages().back().text, Regression::kNoDegreeOfFreedomError);
  EXPECT_EQ(m_ui.messages().back().title, "NORIX");
  EXPECT_EQ(m_ui.messages().back().icon, MessageIcon::Exclamation);
  EXPECT_EQ(m_p->resultsPage().gridWeights().text(1, 1), "0.7000");
  m_p->cmdFinish_Click();
  EXPECT_TRUE(m_events.exports.empty());
  EXPECT_TRUE(m_events.unloads.empty());
  EXPECT_EQ(m_ui.messages().back().text, Regression::kNoDegreeOfFreedomError);
}

TEST_F(TradeOffsAPresenterTest, FailedInversionEndsInTheZeroSumMessageAndFinishExportsNothing) {
  load(3);
  m_p->weights().CloseWeights = {0.1, 0.2, 0.3};
  m_p->weights().UpperWeights = {0.4, 0.5, 0.6};
  m_p->weights().LowerWeights = {0.05, 0.15, 0.25};
  // Only the pair (0, 1) is judged, so attribute 3 never varies and nothing can be inverted.
  m_p->optPCManual_Click();
  m_p->tsComparisonApproaches_Click(2);
  for (int i = 0; i < 4; ++i) {
    m_p->optPCVerbal_Click(i);
    m_p->setScoreText(0, std::to_string(1 + i));
    m_p->cmdTradeOffEnter_Click();
  }
  m_p->cmdNext_Click();
  // The warning first, then the outcome: the coefficients it left cannot be normalised.
  ASSERT_EQ(m_ui.messages().size(), 2u);
  EXPECT_EQ(m_ui.messages()[0].text, Regression::kNoInverseWarning);
  EXPECT_EQ(m_ui.messages()[1].text, Regression::kZeroSumError);
  EXPECT_EQ(m_ui.messages()[1].title, "NORIX");
  EXPECT_EQ(m_ui.messages()[1].icon, MessageIcon::Exclamation);
  ASSERT_TRUE(m_p->fitError().has_value());
  EXPECT_EQ(*m_p->fitError(), Regression::kZeroSumError);
  EXPECT_EQ(m_p->step(), TradeOffsAPresenter::kResultsStep);
  // The grids show what the tables held before.
  const wizard::GridState& g = m_p->resultsPage().gridWeights();
  EXPECT_EQ(g.cells[3], (std::vector<std::string>{"Att3", "0.3000", "0.6000", "0.2500"}));
  EXPECT_EQ(m_p->resultsPage().gridOverallRegression().text(4, 1), "");
  m_p->cmdFinish_Click();
  EXPECT_TRUE(m_events.exports.empty());
  EXPECT_TRUE(m_events.unloads.empty());
  EXPECT_EQ(m_ui.messages().back().text, Regression::kZeroSumError);
  // The dialog stays usable: Back returns to the judgments, Cancel unloads without export.
  m_p->cmdBack_Click();
  EXPECT_EQ(m_p->step(), TradeOffsAPresenter::kJudgmentStep);
  m_p->cmdCancel_Click();
  ASSERT_EQ(m_events.unloads.size(), 1u);
  EXPECT_EQ(m_events.unloads[0], (std::pair<std::int16_t, bool>{3, false}));
  EXPECT_TRUE(m_events.exports.empty());
}

TEST_F(TradeOffsAPresenterTest, ZeroTotalSumOfSquaresEndsInTheZeroSumMessageAndExportsNothing) {
  load(3);
  // Every response is 2 ("Moderately the opposite"): nothing to explain, so CalParameters stops
  // on mL(0,0) and the coefficients stay 0.
  m_p->tsComparisonApproaches_Click(2);
  m_p->optPCVerbal_Click(5);
  const char* scores[6][4] = {{"8", "2", "3", "7"}, {"6", "1", "2", "9"}, {"4", "5", "9", "1"},
                              {"7", "3", "1", "6"}, {"2", "8", "5", "4"}, {"9", "6", "3", "2"}};
  for (const auto& row : scores) {
    for (int b = 0; b < 4; ++b) m_p->setScoreText(b, row[b]);
    m_p->cmdTradeOffEnter_Click();
  }
  ASSERT_EQ(m_p->judgmentPage().TradeOffNo(), 6);
  ASSERT_TRUE(m_ui.messages().empty());
  m_p->cmdNext_Click();
  ASSERT_EQ(m_ui.messages().size(), 2u);
  EXPECT_EQ(m_ui.messages()[0].text, Regression::kZeroTotalWarning);
  EXPECT_EQ(m_ui.messages()[1].text, Regression::kZeroSumError);
  EXPECT_EQ(m_ui.messages()[1].title, "NORIX");
  ASSERT_TRUE(m_p->fitError().has_value());
  EXPECT_EQ(*m_p->fitError(), Regression::kZeroSumError);
  // The later steps ran on the unset coefficients and stored them: the grids show those zeros.
  const wizard::GridState& g = m_p->resultsPage().gridWeights();
  EXPECT_EQ(g.cells[1], (std::vector<std::string>{"Att1", "0.0000", "0.0000", "0.0000"}));
  EXPECT_EQ(m_p->resultsPage().gridOverallRegression().text(4, 1), "6");
  EXPECT_EQ(m_p->resultsPage().gridOverallRegression().text(5, 1), "");
  for (const auto& row : g.cells) {
    for (const std::string& cell : row) {
      EXPECT_EQ(cell.find("nan"), std::string::npos) << cell;
      EXPECT_EQ(cell.find("inf"), std::string::npos) << cell;
    }
  }
  m_p->cmdFinish_Click();
  EXPECT_TRUE(m_events.exports.empty());
  EXPECT_TRUE(m_events.unloads.empty());
  EXPECT_EQ(m_ui.messages().size(), 3u);
}

TEST_F(TradeOffsAPresenterTest, TwoAttributeFitShowsOnlyItsOwnMessageAfterAnyWarnings) {
  load(2);
  m_p->cmdTradeOffEnter_Click();
  m_p->cmdTradeOffEnter_Click();
  m_p->cmdNext_Click();
  // The coefficients of this fit also sum to zero, but the fit's own message is the one shown.
  ASSERT_EQ(m_ui.messages().size(), 1u);
  EXPECT_EQ(m_ui.messages()[0].text, Regression::kNoDegreeOfFreedomError);
  EXPECT_EQ(*m_p->fitError(), Regression::kNoDegreeOfFreedomError);
}

TEST_F(TradeOffsAPresenterTest, IsATwoPageWizardWhosePagesNameTheirNextStep) {
  load(3);
  EXPECT_EQ(m_p->stepCount(), 2);
  EXPECT_EQ(m_p->caption(), TradeOffsAPresenter::kCaption);
  EXPECT_EQ(m_p->cmdTNWizardHelp().caption, m_p->cmdHelp().caption);
  EXPECT_EQ(m_p->judgmentPage().nextId(), TradeOffsAPresenter::kResultsStep);
  EXPECT_EQ(m_p->resultsPage().nextId(), wizard::WizardPage::kNoNextPage);
  // Next on the results page leads nowhere; each operation tells the listener once.
  enterVerbalJudgments();
  m_p->cmdNext_Click();
  ASSERT_EQ(m_p->step(), TradeOffsAPresenter::kResultsStep);
  const int changes = m_changes;
  m_p->cmdNext_Click();
  EXPECT_EQ(m_p->step(), TradeOffsAPresenter::kResultsStep);
  EXPECT_EQ(m_changes, changes);
  m_p->cmdBack_Click();
  EXPECT_EQ(m_p->step(), TradeOffsAPresenter::kJudgmentStep);
  EXPECT_EQ(m_changes, changes + 1);
}

TEST_F(TradeOffsAPresenterTest, TheFitWritesTheMethodsOwnResult) {
  load(3);
  enterVerbalJudgments();
  m_p->cmdNext_Click();
  ASSERT_FALSE(m_p->fitError().has_value());
  EXPECT_EQ(m_p->weights().CloseWeights.size(), 3u);
  EXPECT_FALSE(m_p->weights().RegressionComment.empty());
}

}  // namespace
}  // namespace tnw::tradeoffs
