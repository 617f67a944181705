#include "direct/core/saved_intervals.h"

#include "common/core/recording_ui_services.h"
#include "direct/core/direct_a_presenter.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <map>
#include <string>
#include <vector>

namespace tnw::direct {
namespace {

// Keeps files in memory: what was saved under each name, and what a load of a name gives.
class MemoryIntervalsFile : public IntervalsFile {
 public:
  std::optional<std::string> save(const std::string& path,
                                  const DirectScenario& scenario) const override {
    saved[path] = scenario;
    return std::nullopt;
  }
  std::optional<std::string> load(const std::string& path,
                                  DirectScenario& scenario) const override {
    const auto it = saved.find(path);
    if (it == saved.end()) return std::string("There are problems in accessing the relevant data.");
    scenario = it->second;
    return std::nullopt;
  }

  mutable std::map<std::string, DirectScenario> saved;
};

class SavedIntervalsTest : public ::testing::Test {
 protected:
  // Three attributes: the first alone in group 1, the other two sharing group 2 below it, and
  // a fourth alone in group 3; the first is the reference.
  void SetUp() override {
    m_presenter.Form_Load();
    const std::vector<int> order = {1, 2, 2, 3};
    for (int j = 0; j < 4; ++j) {
      while (m_presenter.ordering().order().GroupCount() < order[static_cast<std::size_t>(j)]) {
        m_presenter.cmdAdd_Click();
      }
      m_presenter.picOrder_DragDrop(order[static_cast<std::size_t>(j)], "A" + std::to_string(j));
    }
    m_presenter.cmdNext_Click();
    m_presenter.cmdAttButtons_Click(0);
    m_presenter.cmdNext_Click();
    ASSERT_EQ(m_presenter.WizardStep(), DirectAPresenter::kJudgmentStep);
  }

  DirectScenario fileWith(std::vector<ScenarioStep> steps) {
    DirectScenario s;
    s.order = std::vector<int>{1, 2, 2, 3};
    s.reference = 0;
    s.steps = std::move(steps);
    return s;
  }

  // The lower and upper ratios and the judged flags of the page.
  std::vector<double> state() const {
    const WeightRatioJudgments& j = m_presenter.judgment().judgments();
    std::vector<double> out;
    for (int i = 0; i < 4; ++i) {
      out.push_back(j.lower(i));
      out.push_back(j.upper(i));
      out.push_back(j.judged(i) ? 1.0 : 0.0);
    }
    return out;
  }

  WizardContext m_context = test::makeContext(4);
  RecordingUiServices m_ui;
  test::RecordingDirectAEvents m_events;
  DirectAPresenter m_presenter{m_context, m_ui, m_events};
  MemoryIntervalsFile m_file;
  SavedIntervals m_saved{m_context, m_ui, m_presenter, &m_file};
};

TEST_F(SavedIntervalsTest, TheButtonsAreOfferedOnTheJudgmentStepWithAFileForm) {
  EXPECT_TRUE(m_saved.cmdLoadJudgments().visible);
  EXPECT_TRUE(m_saved.cmdLoadJudgments().enabled);
  EXPECT_EQ(m_saved.cmdSaveJudgments().caption, "Sa&ve judgments...");
  // Only the reference's group is judged yet: nothing to save.
  EXPECT_FALSE(m_saved.cmdSaveJudgments().enabled);
  ASSERT_TRUE(m_saved.replace(fileWith({{false, 3, "0.2", "0.4"}})));
  EXPECT_TRUE(m_saved.cmdSaveJudgments().enabled);
  SavedIntervals none(m_context, m_ui, m_presenter, nullptr);
  EXPECT_FALSE(none.cmdSaveJudgments().visible);
  EXPECT_FALSE(none.cmdLoadJudgments().visible);
  m_presenter.cmdBack_Click();
  EXPECT_FALSE(m_saved.cmdLoadJudgments().enabled);
  EXPECT_FALSE(m_saved.cmdSaveJudgments().enabled);
}

TEST_F(SavedIntervalsTest, LoadedIntervalsAreEnteredAndSaveWritesThemBack) {
  const DirectScenario file = fileWith({{false, 1, "0.5", "0.8"}, {false, 3, "0.2", "0.4"}});
  m_file.saved["in.json"] = file;
  m_ui.setOpenFile("in.json");
  m_saved.cmdLoadJudgments_Click();
  EXPECT_TRUE(m_ui.messages().empty()) << m_ui.messages()[0].text;
  const WeightRatioJudgments& j = m_presenter.judgment().judgments();
  EXPECT_TRUE(j.judged(1) && j.judged(2) && j.judged(3));
  EXPECT_DOUBLE_EQ(j.lower(2), 0.5);
  EXPECT_DOUBLE_EQ(j.upper(3), 0.4);
  m_ui.setSaveFile("out.json");
  m_saved.cmdSaveJudgments_Click();
  const DirectScenario& out = m_file.saved.at("out.json");
  EXPECT_EQ(out.order, file.order);
  EXPECT_EQ(out.reference, 0);
  ASSERT_EQ(out.steps.size(), 2u);
  EXPECT_EQ(out.steps[0].target, 1);
  EXPECT_EQ(out.steps[0].lower, "0.5");
  EXPECT_EQ(out.steps[0].upper, "0.8");
  EXPECT_EQ(out.steps[1].target, 3);
  EXPECT_EQ(out.steps[1].lower, "0.2");
  // Loading what was saved after a restart gives the same page.
  const std::vector<double> before = state();
  m_presenter.cmdReStart_Click();
  ASSERT_NE(state(), before);
  m_ui.setOpenFile("out.json");
  m_saved.cmdLoadJudgments_Click();
  EXPECT_EQ(state(), before);
  EXPECT_TRUE(m_ui.messages().empty());
}

TEST_F(SavedIntervalsTest, LoadedIntervalsReplaceTheOnesGiven) {
  ASSERT_TRUE(m_saved.replace(fileWith({{false, 3, "0.2", "0.4"}})));
  ASSERT_TRUE(m_saved.replace(fileWith({{false, 1, "0.5", "0.8"}})));
  EXPECT_FALSE(m_presenter.judgment().judgments().judged(3));
  EXPECT_TRUE(m_presenter.judgment().judgments().judged(1));
}

TEST_F(SavedIntervalsTest, AnotherOrderOrReferenceChangesNothing) {
  ASSERT_TRUE(m_saved.replace(fileWith({{false, 1, "0.5", "0.8"}})));
  const std::vector<double> before = state();
  DirectScenario other = fileWith({{false, 3, "0.2", "0.4"}});
  other.order = std::vector<int>{1, 2, 3, 3};
  m_file.saved["other.json"] = other;
  m_ui.setOpenFile("other.json");
  m_saved.cmdLoadJudgments_Click();
  ASSERT_EQ(m_ui.messages().size(), 1u);
  EXPECT_NE(m_ui.messages()[0].text.find("another importance order or reference attribute"),
            std::string::npos);
  EXPECT_EQ(state(), before);
  DirectScenario noReference = fileWith({});
  noReference.reference.reset();
  EXPECT_FALSE(m_saved.replace(noReference));
  EXPECT_EQ(state(), before);
}

TEST_F(SavedIntervalsTest, AnIntervalThePageRefusesChangesNothing) {
  ASSERT_TRUE(m_saved.replace(fileWith({{false, 1, "0.5", "0.8"}})));
  const std::vector<double> before = state();
  // The second step of the file chooses the reference itself as its target.
  EXPECT_FALSE(m_saved.replace(fileWith({{false, 3, "0.2", "0.4"}, {false, 0, "0.5", "0.6"}})));
  ASSERT_EQ(m_ui.messages().size(), 1u);
  EXPECT_EQ(m_ui.messages()[0].text.rfind(
                "These judgments cannot be loaded, and nothing was changed.\rstep [1]: ", 0),
            0u)
      << m_ui.messages()[0].text;
  EXPECT_EQ(m_ui.messages()[0].title, "NORIX");
  EXPECT_EQ(state(), before);
}

TEST_F(SavedIntervalsTest, CancelledChoicesAndUnreadableFilesChangeNothing) {
  ASSERT_TRUE(m_saved.replace(fileWith({{false, 1, "0.5", "0.8"}})));
  const std::vector<double> before = state();
  m_saved.cmdSaveJudgments_Click();
  m_saved.cmdLoadJudgments_Click();
  EXPECT_TRUE(m_file.saved.empty());
  EXPECT_TRUE(m_ui.messages().empty());
  m_ui.setOpenFile("missing.json");
  m_saved.cmdLoadJudgments_Click();
  ASSERT_EQ(m_ui.messages().size(), 1u);
  EXPECT_EQ(m_ui.messages()[0].text,
            "These judgments cannot be loaded, and nothing was changed.\r"
            "There are problems in accessing the relevant data.");
  EXPECT_EQ(state(), before);
}

}  // namespace
}  // namespace tnw::direct
