#include "selmethod/core/selmethod_presenter.h"

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"

// Std
#include <string>
#include <vector>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::selmethod {
namespace {

// Records the events the presenter raises, as text.
class RecordingSelMethodEvents : public SelMethodEvents {
 public:
  void ShowTNWDirect() override { log.push_back("ShowTNWDirect"); }
  void ShowTNWTradeOffsA() override { log.push_back("ShowTNWTradeOffsA"); }
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    log.push_back("UnloadTNWizard " + std::to_string(fIndex) + (WeightsDone ? " true" : " false"));
  }
  void SendMasseges(const std::string& Msg) override { log.push_back("SendMasseges " + Msg); }

  std::vector<std::string> log;
};

class SelMethodPresenterTest : public ::testing::Test {
 protected:
  // A presenter loaded over a model whose earlier result is of kind prevTNType.
  SelMethodPresenter& load(const std::string& prevTNType) {
    context.model.PrevTNType = prevTNType;
    presenter.Form_Load();
    return presenter;
  }

  WizardContext context;
  RecordingUiServices ui;
  RecordingSelMethodEvents events;
  SelMethodPresenter presenter{context, ui, events};
};

const char* const kDirectText = "Give attribute weights directly";
const char* const kRatingText =
    "Elict attribute weights by Simple Multiple Attribute Rating Technique";

TEST_F(SelMethodPresenterTest, ShowsDesignCaptionsBeforeLoading) {
  EXPECT_EQ(presenter.selectedMethodName(), "Selected method:");
  EXPECT_EQ(presenter.description(), "Description contents");
  EXPECT_TRUE(presenter.methods().empty());
  EXPECT_EQ(presenter.selectedIndex(), -1);
}

TEST_F(SelMethodPresenterTest, LoadingListsDirectThenTradeOffsAndDisablesBackAndFinish) {
  load("");
  EXPECT_EQ(presenter.methods(), (std::vector<std::string>{"Direct", "TradeOffs"}));
  EXPECT_FALSE(presenter.cmdBack().enabled);
  EXPECT_FALSE(presenter.cmdFinish().enabled);
}

TEST_F(SelMethodPresenterTest, LoadingSendsTheStatusMessageOnce) {
  load("");
  EXPECT_EQ(events.log, (std::vector<std::string>{
                            "SendMasseges Select a method to make value judgments between "
                            "the attributes."}));
}

TEST_F(SelMethodPresenterTest, EmptyEarlierResultPreselectsDirectWithTheDirectDescription) {
  load("");
  EXPECT_EQ(presenter.selectedIndex(), 0);
  EXPECT_EQ(presenter.selectedMethodName(), "Direct:");
  EXPECT_EQ(presenter.description(), kDirectText);
}

TEST_F(SelMethodPresenterTest, UnknownEarlierResultPreselectsDirect) {
  load("MAVT_SWING");
  EXPECT_EQ(presenter.selectedIndex(), 0);
  EXPECT_EQ(presenter.selectedMethodName(), "Direct:");
  EXPECT_EQ(presenter.description(), kDirectText);
}

TEST_F(SelMethodPresenterTest, DirectEarlierResultPreselectsDirect) {
  load("MAVT_DIRECT");
  EXPECT_EQ(presenter.selectedIndex(), 0);
  EXPECT_EQ(presenter.selectedMethodName(), "Direct:");
}

TEST_F(SelMethodPresenterTest, TradeOffsEarlierResultPreselectsTradeOffsDescribedAsRating) {
  load("MAVT_TRADEOFFS");
  EXPECT_EQ(presenter.selectedIndex(), 1);
  EXPECT_EQ(presenter.selectedMethodName(), "MAVT:");
  EXPECT_EQ(presenter.description(), kRatingText);
}

TEST_F(SelMethodPresenterTest, LowerCaseTradeOffsSpellingDoesNotMatchAndPreselectsDirect) {
  load("mavt_tradeoffs");
  EXPECT_EQ(presenter.selectedIndex(), 0);
  EXPECT_EQ(presenter.selectedMethodName(), "Direct:");
}

TEST_F(SelMethodPresenterTest, TrailingBlankDoesNotMatch) {
  load("MAVT_TRADEOFFS ");
  EXPECT_EQ(presenter.selectedIndex(), 0);
}

TEST_F(SelMethodPresenterTest, ChangingTheSelectionKeepsTheLoadedDescription) {
  load("");
  presenter.lstMethods_Click(1);
  EXPECT_EQ(presenter.selectedIndex(), 1);
  EXPECT_EQ(presenter.selectedMethodName(), "Direct:");
  EXPECT_EQ(presenter.description(), kDirectText);
}

TEST_F(SelMethodPresenterTest, NextWithDirectSelectedRaisesShowTNWDirect) {
  load("");
  events.log.clear();
  presenter.cmdNext_Click();
  EXPECT_EQ(events.log, (std::vector<std::string>{"ShowTNWDirect"}));
}

TEST_F(SelMethodPresenterTest, NextWithTradeOffsSelectedRaisesShowTNWTradeOffsA) {
  load("");
  presenter.lstMethods_Click(1);
  events.log.clear();
  presenter.cmdNext_Click();
  EXPECT_EQ(events.log, (std::vector<std::string>{"ShowTNWTradeOffsA"}));
}

TEST_F(SelMethodPresenterTest, NextWithNoSelectionDoesNothing) {
  load("");
  presenter.lstMethods_Click(-1);
  events.log.clear();
  presenter.cmdNext_Click();
  EXPECT_TRUE(events.log.empty());
  EXPECT_TRUE(ui.messages().empty());
}

TEST_F(SelMethodPresenterTest, SelectingAnIndexOutsideTheListClearsTheSelection) {
  load("");
  presenter.lstMethods_Click(2);
  EXPECT_EQ(presenter.selectedIndex(), -1);
}

TEST_F(SelMethodPresenterTest, CancelAsksTheHostToEndWithTheFileIndexAndNoWeights) {
  context.FileIndex = 7;
  load("");
  events.log.clear();
  presenter.cmdCancel_Click();
  EXPECT_EQ(events.log, (std::vector<std::string>{"UnloadTNWizard 7 false"}));
}

TEST_F(SelMethodPresenterTest, HelpOpensTheHostsHelpFileAtTheWizardsTopic) {
  context.NorixDir = "C:\\NORIX";
  load("");
  presenter.cmdHelp_Click();
  EXPECT_EQ(ui.helpFile(), "C:\\NORIX\\NORIX.HLP");
  EXPECT_EQ(ui.helpContext(), 4005025);
  EXPECT_EQ(ui.helpTopic().page, "selmethod");
  EXPECT_EQ(ui.helpTopic().anchor, "selection");
}

TEST_F(SelMethodPresenterTest, ActivationDisablesBackAndFinishAgain) {
  EXPECT_TRUE(presenter.cmdBack().enabled);
  presenter.Form_Activate();
  EXPECT_FALSE(presenter.cmdBack().enabled);
  EXPECT_FALSE(presenter.cmdFinish().enabled);
}

struct DescriptionCase {
  int index;
  const char* name;
  const char* text;
};

class SelMethodDescriptionTest : public SelMethodPresenterTest,
                                 public ::testing::WithParamInterface<DescriptionCase> {};

TEST_P(SelMethodDescriptionTest, ShowsTheDescriptionOfEachKnownIndex) {
  presenter.ShowMethodDescription(GetParam().index);
  EXPECT_EQ(presenter.selectedMethodName(), GetParam().name);
  EXPECT_EQ(presenter.description(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Table, SelMethodDescriptionTest,
    ::testing::Values(
        DescriptionCase{0, "Direct:", "Give attribute weights directly"},
        DescriptionCase{
            1, "MAVT:", "Elict attribute weights by Simple Multiple Attribute Rating Technique"},
        DescriptionCase{2, "SWING:", "Elict attribute weights by SWING"},
        DescriptionCase{3, "Pairwise:", "Elict attribute weights by Pairwise Comparison Matrices"},
        DescriptionCase{4, "TradeOffs_A:",
                        "Elict attribute weights by numerical trade-off between two random "
                        "alternatives. The weights will be infered by multi-linear regression."},
        DescriptionCase{5, "Selected method:", "Description contents"},
        DescriptionCase{-1, "Selected method:", "Description contents"}));

TEST_F(SelMethodPresenterTest, AnIndexOutsideTheDescriptionsChangesNothingAfterLoading) {
  load("MAVT_TRADEOFFS");
  presenter.ShowMethodDescription(5);
  EXPECT_EQ(presenter.selectedMethodName(), "MAVT:");
  EXPECT_EQ(presenter.description(), kRatingText);
}

TEST_F(SelMethodPresenterTest, IsAOnePageWizardThatTellsItsListenerOfEveryChange) {
  int changes = 0;
  presenter.setChangeListener([&changes] { ++changes; });
  EXPECT_EQ(presenter.stepCount(), 1);
  EXPECT_EQ(presenter.caption(), SelMethodPresenter::kCaption);
  load("MAVT_TRADEOFFS");
  EXPECT_EQ(presenter.step(), SelMethodPresenter::kMethodsStep);
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(presenter.methodsPage().isComplete());
  EXPECT_EQ(presenter.methodsPage().nextId(), wizard::WizardPage::kNoNextPage);
  presenter.lstMethods_Click(-1);
  EXPECT_EQ(changes, 2);
  EXPECT_FALSE(presenter.methodsPage().isComplete());
  presenter.Form_Activate();
  EXPECT_EQ(changes, 3);
  EXPECT_FALSE(presenter.cmdBack().enabled);
  EXPECT_TRUE(presenter.cmdNext().enabled);
}

}  // namespace
}  // namespace tnw::selmethod
