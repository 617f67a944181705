#include "component/core/wizard_component.h"

#include "common/core/recording_ui_services.h"
#include "fake_dialog_factory.h"

// Std
#include <algorithm>
#include <string>
#include <vector>

// GoogleTest
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tnw {
namespace {

using ::testing::ElementsAre;
using testing::FakeDialog;
using testing::FakeDialogFactory;
using testing::FakeDirectA;
using testing::FakeSelMethod;
using testing::FakeTradeOffsA;

// A host that records every event as text and may react to them.
class RecordingHost : public TnwMavtEvents {
 public:
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    log.push_back("UnloadTNWizard " + std::to_string(fIndex) + (WeightsDone ? " true" : " false"));
    if (onUnload) onUnload();
  }
  void ExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                      std::vector<double>& Weights, std::vector<double>& WeightsH,
                      std::vector<double>& WeightsL) override {
    log.push_back("ExportDirectAW " + TNType + " " + std::to_string(RefAttID));
    exported = {&Weights, &WeightsH, &WeightsL};
    if (!Weights.empty()) Weights[0] = 0.9;
  }
  void ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                        std::vector<double>& WeightsH, std::vector<double>& WeightsL) override {
    log.push_back("ExportTradeOffsW " + TNType);
    exported = {&Weights, &WeightsH, &WeightsL};
    if (!WeightsL.empty()) WeightsL.back() = 0.125;
  }
  void SendMasseges(const std::string& Msg) override { log.push_back("SendMasseges " + Msg); }

  std::vector<std::string> log;
  std::vector<std::vector<double>*> exported;
  std::function<void()> onUnload;
};

class WizardComponentTest : public ::testing::Test {
 protected:
  WizardComponentTest() {
    ui.setScreenSize({1024, 768});
    component.setEvents(&host);
  }

  FakeSelMethod& sel() { return static_cast<FakeSelMethod&>(*component.selMethod()); }
  FakeDirectA& direct() { return static_cast<FakeDirectA&>(*component.directA()); }
  FakeTradeOffsA& tradeOffs() { return static_cast<FakeTradeOffsA&>(*component.tradeOffsA()); }
  const std::vector<std::string>& log() const { return factory.log.entries; }
  bool logged(const std::string& entry) const {
    return std::find(log().begin(), log().end(), entry) != log().end();
  }

  RecordingUiServices ui;
  FakeDialogFactory factory{ui};
  int reads = 0;
  WizardComponent component{factory, ui,
                            [this](const std::string& path, AttributeModel& model, UiServices&) {
                              ++reads;
                              model.NumAtt = static_cast<std::int16_t>(path.size());
                              model.PrevTNType = "MAVT_TRADEOFFS";
                            }};
  RecordingHost host;
};

TEST_F(WizardComponentTest, CreatedWithNoDialogAndNothingRead) {
  EXPECT_EQ(component.selMethod(), nullptr);
  EXPECT_EQ(component.directA(), nullptr);
  EXPECT_EQ(component.tradeOffsA(), nullptr);
  EXPECT_EQ(reads, 0);
}

TEST_F(WizardComponentTest, GetCurFileDataStoresTheThreeValuesAndReadsTheModelEveryTime) {
  std::string dir = "C:\\NORIX";
  component.GetCurFileData(dir, 3, "model.nrx");
  EXPECT_EQ(component.context().NorixDir, "C:\\NORIX");
  EXPECT_EQ(component.context().FileIndex, 3);
  EXPECT_EQ(component.context().PathAndFileName, "model.nrx");
  EXPECT_EQ(component.context().model.NumAtt, 9);
  component.GetCurFileData(dir, 4, "m.nrx");
  EXPECT_EQ(reads, 2);
  EXPECT_EQ(component.context().FileIndex, 4);
  EXPECT_EQ(component.context().model.NumAtt, 5);
  EXPECT_EQ(dir, "C:\\NORIX");
}

TEST_F(WizardComponentTest, ShowTNWizardMakesCentresAndShowsTheSelectionDialogModeless) {
  component.ShowTNWizard();
  ASSERT_NE(component.selMethod(), nullptr);
  EXPECT_EQ(sel().left, (1024 - 400) / 2);
  EXPECT_EQ(sel().top, (768 - 300) / 2);
  EXPECT_TRUE(sel().dialogVisible());
  EXPECT_FALSE(sel().modal());
  EXPECT_THAT(host.log, ElementsAre("SendMasseges Select a method to make value judgments "
                                    "between the attributes."));
}

TEST_F(WizardComponentTest, SelectionDialogReadsTheModelOfThisComponent) {
  std::string dir = "d";
  component.GetCurFileData(dir, 1, "x");
  component.ShowTNWizard();
  EXPECT_EQ(sel().presenter.selectedIndex(), 1);
}

TEST_F(WizardComponentTest, ShowTNWizardTwiceShowsOneDialog) {
  component.ShowTNWizard();
  WizardDialog* first = component.selMethod();
  sel().setDialogVisible(false);
  component.ShowTNWizard();
  EXPECT_EQ(component.selMethod(), first);
  EXPECT_TRUE(sel().dialogVisible());
  EXPECT_EQ(sel().shows, 1);
  EXPECT_EQ(sel().moves, 1);
  EXPECT_EQ(std::count(log().begin(), log().end(), "create SelMethod#1"), 1);
  EXPECT_FALSE(logged("create SelMethod#2"));
}

TEST_F(WizardComponentTest, UnloadTNWizardWithNoDialogCreatedDoesNothing) {
  component.UnloadTNWizard();
  EXPECT_TRUE(log().empty());
  EXPECT_TRUE(host.log.empty());
  EXPECT_EQ(component.selMethod(), nullptr);
  EXPECT_EQ(component.directA(), nullptr);
  EXPECT_EQ(component.tradeOffsA(), nullptr);
}

TEST_F(WizardComponentTest, ChoosingDirectHidesSelectionAndShowsANewCentredDirectDialogModally) {
  component.ShowTNWizard();
  sel().chooseDirect();
  ASSERT_NE(component.directA(), nullptr);
  EXPECT_FALSE(sel().dialogVisible());
  EXPECT_TRUE(direct().modal());
  EXPECT_TRUE(direct().dialogVisible());
  EXPECT_EQ(direct().left, (1024 - 640) / 2);
  EXPECT_EQ(direct().top, (768 - 480) / 2);
  EXPECT_THAT(log(),
              ElementsAre("create SelMethod#1", "modeless SelMethod#1", "hide SelMethod#1",
                          "create DirectA#1", "modal DirectA#1", "handler done SelMethod#1"));
}

TEST_F(WizardComponentTest, ChoosingTradeOffsHidesSelectionAndShowsTheTradeOffDialogModally) {
  component.ShowTNWizard();
  sel().chooseTradeOffs();
  ASSERT_NE(component.tradeOffsA(), nullptr);
  EXPECT_FALSE(sel().dialogVisible());
  EXPECT_TRUE(tradeOffs().modal());
  EXPECT_EQ(tradeOffs().left, (1024 - 800) / 2);
  EXPECT_EQ(tradeOffs().top, (768 - 600) / 2);
}

TEST_F(WizardComponentTest, DirectBackDirectAgainGivesANewDialogCentredAgain) {
  component.ShowTNWizard();
  sel().chooseDirect();
  direct().moveDialog(5, 6);  // the user moved it
  direct().backOnFirstStep();
  EXPECT_EQ(component.directA(), nullptr);
  EXPECT_TRUE(sel().dialogVisible());
  EXPECT_TRUE(sel().modal());
  sel().chooseDirect();
  ASSERT_NE(component.directA(), nullptr);
  EXPECT_EQ(direct().name(), "DirectA#2");
  EXPECT_EQ(direct().left, (1024 - 640) / 2);
  EXPECT_EQ(direct().top, (768 - 480) / 2);
  EXPECT_TRUE(logged("release DirectA#1"));
}

TEST_F(WizardComponentTest, TradeOffsBackTradeOffsAgainGivesANewDialogWithTheFirstSelection) {
  component.ShowTNWizard();
  WizardDialog* firstSel = component.selMethod();
  sel().chooseTradeOffs();
  tradeOffs().back();
  EXPECT_EQ(component.tradeOffsA(), nullptr);
  EXPECT_EQ(component.selMethod(), firstSel);
  sel().chooseTradeOffs();
  ASSERT_NE(component.tradeOffsA(), nullptr);
  EXPECT_EQ(tradeOffs().name(), "TradeOffsA#2");
  EXPECT_EQ(tradeOffs().moves, 1);
  EXPECT_EQ(component.selMethod(), firstSel);
  EXPECT_FALSE(logged("create SelMethod#2"));
}

TEST_F(WizardComponentTest, BackFromTradeOffsOnlyMakesSelectionVisibleAndReleasesAtOnce) {
  component.ShowTNWizard();
  sel().chooseTradeOffs();
  const std::size_t before = log().size();
  tradeOffs().back();
  std::vector<std::string> after(log().begin() + static_cast<std::ptrdiff_t>(before), log().end());
  EXPECT_THAT(after, ElementsAre("hide TradeOffsA#1", "visible SelMethod#1", "release TradeOffsA#1",
                                 "handler done TradeOffsA#1"));
  EXPECT_FALSE(sel().modal());
  EXPECT_EQ(sel().shows, 1);
}

TEST_F(WizardComponentTest, BackFromDirectShowsSelectionModallyAndReleasesDirectWhenItIsHidden) {
  component.ShowTNWizard();
  sel().chooseDirect();
  direct().raiseShowTNWSelMethod();
  // The modal show of the selection dialog has not returned yet: the direct dialog stays.
  ASSERT_NE(component.directA(), nullptr);
  EXPECT_FALSE(direct().dialogVisible());
  EXPECT_TRUE(sel().modal());
  EXPECT_TRUE(sel().dialogVisible());
  sel().chooseDirect();
  // Hiding the selection dialog ended its modal show, which released the first direct dialog.
  EXPECT_TRUE(logged("release DirectA#1"));
  EXPECT_EQ(direct().name(), "DirectA#2");
}

TEST_F(WizardComponentTest, BackFromDirectMakesASelectionDialogWhenNoneExists) {
  component.ShowTNWizard();
  sel().chooseDirect();
  FakeDirectA& d = direct();
  // The host ends the wizard from inside a status text; the released dialog still runs.
  host.onUnload = nullptr;
  component.UnloadTNWizard();
  d.raiseShowTNWSelMethod();
  ASSERT_NE(component.selMethod(), nullptr);
  EXPECT_EQ(sel().name(), "SelMethod#2");
  EXPECT_TRUE(sel().modal());
  EXPECT_EQ(sel().left, (1024 - 400) / 2);
  EXPECT_EQ(factory.log.destroyedInOwnHandler, 0);
}

TEST_F(WizardComponentTest, UnloadDirectAHidesAndReleasesDirectWithoutTellingTheHost) {
  component.ShowTNWizard();
  sel().chooseDirect();
  host.log.clear();
  direct().backOnFirstStep();
  EXPECT_EQ(component.directA(), nullptr);
  EXPECT_TRUE(logged("release DirectA#1"));
  EXPECT_TRUE(host.log.empty());
}

TEST_F(WizardComponentTest, UnloadTNWizardHidesMethodDialogsBeforeSelectionThenReleasesAll) {
  component.ShowTNWizard();
  sel().chooseDirect();
  const std::size_t before = log().size();
  component.UnloadTNWizard();
  std::vector<std::string> after(log().begin() + static_cast<std::ptrdiff_t>(before), log().end());
  EXPECT_THAT(after, ElementsAre("hide DirectA#1", "hide SelMethod#1", "release SelMethod#1",
                                 "release DirectA#1"));
  EXPECT_EQ(component.selMethod(), nullptr);
  EXPECT_EQ(component.directA(), nullptr);
  factory.flush();
  EXPECT_EQ(factory.log.alive, 0);
}

TEST_F(WizardComponentTest, ShowTNWizardAfterUnloadMakesAFreshSelectionDialog) {
  component.ShowTNWizard();
  component.UnloadTNWizard();
  component.ShowTNWizard();
  EXPECT_EQ(sel().name(), "SelMethod#2");
  EXPECT_EQ(sel().moves, 1);
}

TEST_F(WizardComponentTest, UnloadWhileSelectionIsShownModallyReleasesTheWaitingDirectDialog) {
  component.ShowTNWizard();
  sel().chooseDirect();
  direct().raiseShowTNWSelMethod();
  component.UnloadTNWizard();
  EXPECT_EQ(component.directA(), nullptr);
  EXPECT_EQ(std::count(log().begin(), log().end(), "release DirectA#1"), 1);
  factory.flush();
  EXPECT_EQ(factory.log.alive, 0);
}

TEST_F(WizardComponentTest, UnloadRequestsOfEveryDialogReachTheHostWithTheirValues) {
  std::string dir = "d";
  component.GetCurFileData(dir, 12, "x");
  component.ShowTNWizard();
  sel().cancel();
  sel().chooseDirect();
  direct().cancel();
  direct().backOnFirstStep();
  sel().chooseTradeOffs();
  tradeOffs().finish();
  EXPECT_THAT(host.log,
              ElementsAre(::testing::HasSubstr("SendMasseges"), "UnloadTNWizard 12 false",
                          ::testing::HasSubstr("SendMasseges Order"), "UnloadTNWizard 12 false",
                          "ExportTradeOffsW MAVT_TRADEOFFS", "UnloadTNWizard 12 true"));
}

TEST_F(WizardComponentTest, StatusTextsOfEveryDialogReachTheHostUnchanged) {
  component.ShowTNWizard();
  sel().chooseDirect();
  direct().say("direct says");
  direct().backOnFirstStep();
  sel().chooseTradeOffs();
  tradeOffs().say(" Give your preference between the two selected criteria.");
  EXPECT_THAT(host.log,
              ElementsAre("SendMasseges Select a method to make value judgments between the "
                          "attributes.",
                          "SendMasseges Order the attributes according to their relative "
                          "importance.",
                          "SendMasseges direct says",
                          "SendMasseges  Give your preference between the two selected "
                          "criteria."));
}

TEST_F(WizardComponentTest, ExportDirectAWHandsTheHostTheDialogsOwnArrays) {
  component.ShowTNWizard();
  sel().chooseDirect();
  FakeDirectA& d = direct();
  d.finish();
  ASSERT_EQ(host.exported.size(), 3u);
  EXPECT_EQ(host.exported[0], &d.Weights);
  EXPECT_EQ(host.exported[1], &d.WeightsH);
  EXPECT_EQ(host.exported[2], &d.WeightsL);
  EXPECT_DOUBLE_EQ(d.Weights[0], 0.9);  // the host's change reached the dialog's array
  EXPECT_THAT(host.log, ::testing::Contains("ExportDirectAW MAVT_DIRECT 1"));
}

TEST_F(WizardComponentTest, ExportTradeOffsWHandsTheHostTheDialogsOwnArrays) {
  component.ShowTNWizard();
  sel().chooseTradeOffs();
  FakeTradeOffsA& t = tradeOffs();
  t.finish();
  ASSERT_EQ(host.exported.size(), 3u);
  EXPECT_EQ(host.exported[0], &t.Weights);
  EXPECT_EQ(host.exported[2], &t.WeightsL);
  EXPECT_DOUBLE_EQ(t.WeightsL[1], 0.125);
}

TEST_F(WizardComponentTest, NoDialogIsDestroyedWhileOneOfItsOwnHandlersRuns) {
  host.onUnload = [this] { component.UnloadTNWizard(); };
  component.ShowTNWizard();
  sel().chooseDirect();
  direct().finish();  // the host unloads the wizard from inside Finish
  EXPECT_EQ(component.directA(), nullptr);
  EXPECT_EQ(component.selMethod(), nullptr);
  EXPECT_EQ(factory.log.destroyedInOwnHandler, 0);
  EXPECT_EQ(factory.log.entries.back(), "handler done DirectA#1");
  factory.flush();
  EXPECT_EQ(factory.log.alive, 0);
}

TEST_F(WizardComponentTest, HostUnloadingFromSelectionCancelReleasesEverySafely) {
  host.onUnload = [this] { component.UnloadTNWizard(); };
  component.ShowTNWizard();
  sel().cancel();
  EXPECT_EQ(component.selMethod(), nullptr);
  EXPECT_EQ(factory.log.destroyedInOwnHandler, 0);
  factory.flush();
  EXPECT_EQ(factory.log.alive, 0);
}

TEST_F(WizardComponentTest, AMethodDialogThatCannotBeMadeLeavesTheUserOnSelection) {
  factory.tradeOffsAvailable = false;
  component.ShowTNWizard();
  sel().chooseTradeOffs();
  EXPECT_EQ(component.tradeOffsA(), nullptr);
  EXPECT_TRUE(sel().dialogVisible());
  factory.directAvailable = false;
  sel().chooseDirect();
  EXPECT_EQ(component.directA(), nullptr);
  EXPECT_TRUE(sel().dialogVisible());
}

TEST_F(WizardComponentTest, EventsWithoutAHostListenerAreDropped) {
  component.setEvents(nullptr);
  component.ShowTNWizard();
  sel().chooseDirect();
  direct().finish();
  EXPECT_TRUE(host.log.empty());
}

TEST_F(WizardComponentTest, DestroyingTheComponentReleasesItsDialogsThroughTheFactory) {
  {
    WizardComponent other(factory, ui, nullptr);
    other.ShowTNWizard();
  }
  EXPECT_TRUE(logged("release SelMethod#1"));
  factory.flush();
  EXPECT_EQ(factory.log.alive, 0);
}

TEST(WizardComponentContextTest, TwoComponentsKeepTheirOwnData) {
  RecordingUiServices ui;
  FakeDialogFactory factory(ui);
  auto reader = [](const std::string& path, AttributeModel& model, UiServices&) {
    model.PrevTNType = path;
  };
  WizardComponent a(factory, ui, reader);
  WizardComponent b(factory, ui, reader);
  std::string dirA = "A";
  std::string dirB = "B";
  a.GetCurFileData(dirA, 1, "MAVT_TRADEOFFS");
  b.GetCurFileData(dirB, 2, "MAVT_DIRECT");
  EXPECT_EQ(a.context().NorixDir, "A");
  EXPECT_EQ(b.context().NorixDir, "B");
  EXPECT_EQ(a.context().model.PrevTNType, "MAVT_TRADEOFFS");
  EXPECT_EQ(b.context().model.PrevTNType, "MAVT_DIRECT");
  a.ShowTNWizard();
  b.ShowTNWizard();
  EXPECT_EQ(static_cast<FakeSelMethod&>(*a.selMethod()).presenter.selectedIndex(), 1);
  EXPECT_EQ(static_cast<FakeSelMethod&>(*b.selMethod()).presenter.selectedIndex(), 0);
}

}  // namespace
}  // namespace tnw
