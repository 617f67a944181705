// How the component ends the wizard after one of its dialogs' handlers failed, with fake dialogs.

#include "common/core/recording_ui_services.h"
#include "component/core/wizard_component.h"
#include "fake_dialog_factory.h"

// Std
#include <algorithm>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

using testing::FakeDialogFactory;
using testing::FakeSelMethod;

// UI services whose message box may act while it is open, as its nested event loop could.
class ActingUi : public RecordingUiServices {
 public:
  void messageBox(const std::string& text, MessageIcon icon, const std::string& title) override {
    RecordingUiServices::messageBox(text, icon, title);
    if (whileShown) whileShown();
  }

  std::function<void()> whileShown;
};

// A host that records UnloadTNWizard and may fail in it.
class Host : public TnwMavtEvents {
 public:
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    log.push_back("UnloadTNWizard " + std::to_string(fIndex) + (WeightsDone ? " true" : " false"));
    if (failUnload) throw std::runtime_error("host failed");
  }
  void SendMasseges(const std::string&) override {}

  long unloads(const std::string& args) const {
    return std::count(log.begin(), log.end(), "UnloadTNWizard " + args);
  }

  std::vector<std::string> log;
  bool failUnload = false;
};

class WizardFailureTest : public ::testing::Test {
 protected:
  WizardFailureTest() {
    component.setEvents(&host);
    std::string dir = "/opt/norix";
    component.GetCurFileData(dir, 7, "model.nrx");
    component.ShowTNWizard();
  }

  bool logged(const std::string& entry) const {
    const auto& e = factory.log.entries;
    return std::find(e.begin(), e.end(), entry) != e.end();
  }

  ActingUi ui;
  FakeDialogFactory factory{ui};
  WizardComponent component{factory, ui, nullptr};
  Host host;
};

TEST_F(WizardFailureTest, ShowsTheMessageReleasesEveryDialogAndTellsTheHostOnce) {
  static_cast<FakeSelMethod&>(*component.selMethod()).chooseDirect();
  ASSERT_NE(component.directA(), nullptr);
  component.endAfterFailure("It failed.");
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].text, "It failed.");
  EXPECT_EQ(ui.messages()[0].title, "NORIX");
  EXPECT_EQ(ui.messages()[0].icon, MessageIcon::Exclamation);
  EXPECT_EQ(component.selMethod(), nullptr);
  EXPECT_EQ(component.directA(), nullptr);
  EXPECT_TRUE(logged("hide DirectA#1"));
  EXPECT_TRUE(logged("release SelMethod#1"));
  EXPECT_TRUE(logged("release DirectA#1"));
  EXPECT_EQ(host.log, std::vector<std::string>{"UnloadTNWizard 7 false"});
}

TEST_F(WizardFailureTest, AFailureWhileTheMessageIsShownEndsNothingTwice) {
  ui.whileShown = [this] {
    ui.whileShown = nullptr;
    component.endAfterFailure("Again.");
  };
  component.endAfterFailure("It failed.");
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].text, "It failed.");
  EXPECT_EQ(host.unloads("7 false"), 1);
}

TEST_F(WizardFailureTest, NeitherAFailingMessageBoxNorAFailingHostGetsOut) {
  ui.whileShown = [] { throw std::runtime_error("no message box"); };
  host.failUnload = true;
  EXPECT_NO_THROW(component.endAfterFailure("It failed."));
  EXPECT_EQ(component.selMethod(), nullptr);
  EXPECT_EQ(host.unloads("7 false"), 1);
  // The component still works afterwards.
  host.failUnload = false;
  ui.whileShown = nullptr;
  component.ShowTNWizard();
  EXPECT_NE(component.selMethod(), nullptr);
}

}  // namespace
}  // namespace tnw
