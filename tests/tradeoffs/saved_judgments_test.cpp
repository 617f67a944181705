#include "tradeoffs/core/saved_judgments.h"

#include "common/core/recording_ui_services.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/core/tradeoffs_a_events.h"
#include "tradeoffs/core/tradeoffs_a_presenter.h"
#include "wizard/core/wizard_context.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tnw::tradeoffs {
namespace {

// Keeps files in memory: what was saved under each name, and what a load of a name gives.
class MemoryJudgmentsFile : public JudgmentsFile {
 public:
  std::optional<std::string> save(const std::string& path,
                                  const std::vector<TradeOffJudgment>& judgments) const override {
    if (path == "read-only") return std::string("The file cannot be written.");
    saved[path] = judgments;
    return std::nullopt;
  }
  std::optional<std::string> load(const std::string& path, int numAtt,
                                  std::vector<TradeOffJudgment>& judgments) const override {
    lastNumAtt = numAtt;
    const auto it = saved.find(path);
    if (it == saved.end()) return std::string("There are problems in accessing the relevant data.");
    judgments = it->second;
    return std::nullopt;
  }

  mutable std::map<std::string, std::vector<TradeOffJudgment>> saved;
  mutable int lastNumAtt = -1;
};

TradeOffJudgment judgment(int first, int second, double a1, double b1, double a2, double b2,
                          int response = 0) {
  TradeOffJudgment j;
  j.first = first;
  j.second = second;
  j.scores[0] = a1;
  j.scores[1] = b1;
  j.scores[2] = a2;
  j.scores[3] = b2;
  j.response = response;
  return j;
}

// Compares every field of two judgment lists.
void expectSameJudgments(const std::vector<TradeOffJudgment>& a,
                         const std::vector<TradeOffJudgment>& b) {
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t k = 0; k < a.size(); ++k) {
    EXPECT_EQ(a[k].first, b[k].first) << k;
    EXPECT_EQ(a[k].second, b[k].second) << k;
    for (int i = 0; i < 4; ++i) EXPECT_DOUBLE_EQ(a[k].scores[i], b[k].scores[i]) << k;
    EXPECT_EQ(a[k].response, b[k].response) << k;
  }
}

class SavedJudgmentsTest : public ::testing::Test {
 protected:
  void SetUp() override { open(3); }

  void open(int numAtt, const JudgmentsFile* file = nullptr) {
    m_ctx.model = testing::makeModel(numAtt);
    m_presenter = std::make_unique<TradeOffsAPresenter>(m_ctx, m_ui, m_events, m_random);
    m_presenter->Form_Load();
    m_saved = std::make_unique<SavedJudgments>(m_ctx, m_ui, *m_presenter,
                                               file == nullptr ? &m_file : file);
  }

  // Enters three judgments by hand: two numerical, one verbal.
  void enterByHand() {
    const std::vector<TradeOffJudgment> typed = {
        judgment(0, 1, 2, 4, 6, 3), judgment(1, 2, 1, 5, 7, 2), judgment(2, 0, 3, 8, 2, 9, -2)};
    ASSERT_TRUE(m_saved->replace(typed));
  }

  const JudgmentStore& store() { return m_presenter->judgmentPage().store(); }

  WizardContext m_ctx;
  RecordingUiServices m_ui;
  testing::NullTradeOffsEvents m_events;
  testing::SequenceRandomSource m_random{{0.25f, 0.75f}};
  MemoryJudgmentsFile m_file;
  std::unique_ptr<TradeOffsAPresenter> m_presenter;
  std::unique_ptr<SavedJudgments> m_saved;
};

TEST_F(SavedJudgmentsTest, ButtonsAreHiddenWithoutAFileForm) {
  SavedJudgments none(m_ctx, m_ui, *m_presenter, nullptr);
  EXPECT_FALSE(none.cmdSaveJudgments().visible);
  EXPECT_FALSE(none.cmdLoadJudgments().visible);
  none.cmdLoadJudgments_Click();
  EXPECT_TRUE(m_ui.fileRequests().empty());
}

TEST_F(SavedJudgmentsTest, SaveIsEnabledOnlyWhileJudgmentsAreRecorded) {
  EXPECT_TRUE(m_saved->cmdSaveJudgments().visible);
  EXPECT_FALSE(m_saved->cmdSaveJudgments().enabled);
  EXPECT_TRUE(m_saved->cmdLoadJudgments().enabled);
  EXPECT_EQ(m_saved->cmdSaveJudgments().caption, "Sa&ve judgments...");
  EXPECT_EQ(m_saved->cmdLoadJudgments().caption, "&Load judgments...");
  enterByHand();
  EXPECT_TRUE(m_saved->cmdSaveJudgments().enabled);
}

TEST_F(SavedJudgmentsTest, SaveWritesTheRecordedJudgmentsUnderTheChosenName) {
  enterByHand();
  m_ui.setSaveFile("session.json");
  m_saved->cmdSaveJudgments_Click();
  ASSERT_EQ(m_ui.fileRequests().size(), 1u);
  EXPECT_EQ(m_ui.fileRequests()[0].suggestedName, SavedJudgments::kSuggestedName);
  ASSERT_EQ(m_file.saved.count("session.json"), 1u);
  expectSameJudgments(
      m_file.saved["session.json"],
      {judgment(0, 1, 2, 4, 6, 3), judgment(1, 2, 1, 5, 7, 2), judgment(2, 0, 3, 8, 2, 9, -2)});
  EXPECT_TRUE(m_ui.messages().empty());
}

TEST_F(SavedJudgmentsTest, CancelledChoicesDoNothing) {
  enterByHand();
  m_saved->cmdSaveJudgments_Click();
  m_saved->cmdLoadJudgments_Click();
  EXPECT_EQ(m_ui.fileRequests().size(), 2u);
  EXPECT_TRUE(m_file.saved.empty());
  EXPECT_EQ(store().JudgmentCount, 3);
  EXPECT_TRUE(m_ui.messages().empty());
}

TEST_F(SavedJudgmentsTest, AFailedWriteIsReported) {
  enterByHand();
  m_ui.setSaveFile("read-only");
  m_saved->cmdSaveJudgments_Click();
  ASSERT_EQ(m_ui.messages().size(), 1u);
  EXPECT_EQ(m_ui.messages()[0].text,
            "The judgments could not be saved.\rThe file cannot be written.");
  EXPECT_EQ(m_ui.messages()[0].title, "NORIX");
}

TEST_F(SavedJudgmentsTest, LoadReplacesTheJudgmentsAsIfTheyHadBeenEntered) {
  enterByHand();
  const std::vector<TradeOffJudgment> before = SavedJudgments::recorded(store());
  m_file.saved["other.json"] = {judgment(1, 0, 9, 1, 2, 8)};
  m_ui.setOpenFile("other.json");
  m_saved->cmdLoadJudgments_Click();
  EXPECT_EQ(m_file.lastNumAtt, 3);
  EXPECT_TRUE(m_ui.messages().empty());
  expectSameJudgments(SavedJudgments::recorded(store()), {judgment(1, 0, 9, 1, 2, 8)});
  EXPECT_EQ(m_presenter->judgmentPage().controls().labPCThisNum.caption, "2");
  EXPECT_TRUE(m_presenter->judgmentPage().controls().optPCManual.value);
  // Loading the saved session back gives the first state again.
  m_file.saved["first.json"] = before;
  m_ui.setOpenFile("first.json");
  m_saved->cmdLoadJudgments_Click();
  expectSameJudgments(SavedJudgments::recorded(store()), before);
  EXPECT_EQ(m_presenter->judgmentPage().controls().labPCThisNum.caption, "4");
}

TEST_F(SavedJudgmentsTest, ARecordedStoreHoldsTheValueDifferencesOfTheEnteredJudgments) {
  enterByHand();
  // Judgment 3 compares attribute 2 (A 3, B 8) with attribute 0 (A 2, B 9), linear values /10.
  EXPECT_NEAR(store().ValueDiff[2][2], 0.3 - 0.8, 1e-12);
  EXPECT_NEAR(store().ValueDiff[2][0], 0.2 - 0.9, 1e-12);
  EXPECT_EQ(store().PrefResponse[2], -2);
}

// Loads `file` after three judgments by hand and expects one message containing `why`, and the
// judgments unchanged.
void expectRefused(SavedJudgmentsTest& test, MemoryJudgmentsFile& file, RecordingUiServices& ui,
                   SavedJudgments& saved, const JudgmentStore& store,
                   const std::vector<TradeOffJudgment>& contents, const std::string& why) {
  static_cast<void>(test);
  const std::vector<TradeOffJudgment> before = SavedJudgments::recorded(store);
  file.saved["bad.json"] = contents;
  ui.setOpenFile("bad.json");
  saved.cmdLoadJudgments_Click();
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_NE(ui.messages()[0].text.find("nothing was changed"), std::string::npos);
  EXPECT_NE(ui.messages()[0].text.find(why), std::string::npos) << ui.messages()[0].text;
  EXPECT_EQ(ui.messages()[0].icon, MessageIcon::Exclamation);
  expectSameJudgments(SavedJudgments::recorded(store), before);
}

TEST_F(SavedJudgmentsTest, AScoreOutsideItsRangeChangesNothing) {
  enterByHand();
  expectRefused(*this, m_file, m_ui, *m_saved, store(),
                {judgment(0, 1, 2, 4, 6, 3), judgment(0, 2, 2, 11, 6, 3)},
                "judgment [1]: The data you entered should be in the relevant score range");
  EXPECT_EQ(m_presenter->judgmentPage().controls().labPCThisNum.caption, "4");
}

TEST_F(SavedJudgmentsTest, MoreJudgmentsThanTheMethodRecordsChangeNothing) {
  enterByHand();
  expectRefused(*this, m_file, m_ui, *m_saved, store(),
                std::vector<TradeOffJudgment>(7, judgment(0, 1, 2, 4, 6, 3)),
                "The file holds 7 judgments; this model needs 6");
}

TEST_F(SavedJudgmentsTest, APairOfOneAttributeChangesNothing) {
  enterByHand();
  expectRefused(*this, m_file, m_ui, *m_saved, store(), {judgment(1, 1, 2, 4, 6, 3)},
                "judgment [0]: the lists cannot choose this pair (1, 1).");
}

TEST_F(SavedJudgmentsTest, AnUnreadableFileChangesNothing) {
  enterByHand();
  m_ui.setOpenFile("missing.json");
  m_saved->cmdLoadJudgments_Click();
  ASSERT_EQ(m_ui.messages().size(), 1u);
  EXPECT_EQ(m_ui.messages()[0].text,
            "These judgments cannot be loaded, and nothing was changed.\r"
            "There are problems in accessing the relevant data.");
  EXPECT_EQ(store().JudgmentCount, 3);
}

TEST_F(SavedJudgmentsTest, TheExchangedPairOfATwoAttributeModelIsRefusedBeforeAnyChange) {
  open(2);
  // The lists of a two-attribute model cannot exchange the pair (0, 1) for (1, 0).
  expectRefused(*this, m_file, m_ui, *m_saved, store(),
                {judgment(0, 1, 2, 4, 6, 3), judgment(1, 0, 2, 4, 6, 3)},
                "judgment [1]: the lists cannot choose this pair (1, 0).");
  EXPECT_EQ(store().JudgmentCount, 0);
}

}  // namespace
}  // namespace tnw::tradeoffs
