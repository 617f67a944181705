// What the trade-off dialog's undo history costs in memory blocks: a snapshot of the judgment
// page holds none of its own, and letting go of a history costs the same whatever its length.
// This program counts every block taken and given back through the global operator new and
// delete.

#include "common/core/recording_ui_services.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/core/score_entry.h"
#include "tradeoffs/core/tradeoffs_a_presenter.h"
#include "wizard/core/wizard_context.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>

namespace {

std::size_t g_taken = 0;
std::size_t g_given = 0;

void* take(std::size_t size) {
  ++g_taken;
  if (void* p = std::malloc(size == 0 ? 1 : size)) return p;
  throw std::bad_alloc();
}

void give(void* p) noexcept {
  if (p == nullptr) return;
  ++g_given;
  std::free(p);
}

}  // namespace

void* operator new(std::size_t size) { return take(size); }
void* operator new[](std::size_t size) { return take(size); }
void operator delete(void* p) noexcept { give(p); }
void operator delete[](void* p) noexcept { give(p); }
void operator delete(void* p, std::size_t) noexcept { give(p); }
void operator delete[](void* p, std::size_t) noexcept { give(p); }

namespace tnw::tradeoffs {
namespace {

// The blocks taken and given back since it was made.
class BlockCount {
 public:
  std::size_t taken() const { return g_taken - m_taken; }
  std::size_t given() const { return g_given - m_given; }

 private:
  std::size_t m_taken = g_taken;
  std::size_t m_given = g_given;
};

class TradeOffsUndoMemoryTest : public ::testing::Test {
 protected:
  // The dialog loaded over 31 attributes with short names.
  void load() {
    m_ctx.model = testing::makeModel(kMaxAttributes);
    m_ctx.FileIndex = 4;
    m_p = std::make_unique<TradeOffsAPresenter>(m_ctx, m_ui, m_events, m_random);
    m_p->Form_Load();
  }
  // Records n judgments of the automatic cycle, each through Enter.
  void enter(int n) {
    for (int i = 0; i < n; ++i) m_p->cmdTradeOffEnter_Click();
    ASSERT_EQ(m_p->judgmentPage().TradeOffNo(), n);
    ASSERT_EQ(m_p->commands().undoCount(), static_cast<std::size_t>(n));
  }
  // The blocks given back by Back from the results page, after n judgments.
  std::size_t givenOnBack(int n) {
    load();
    enter(n);
    m_p->cmdNext_Click();
    EXPECT_EQ(m_p->step(), kResultsStep);
    const BlockCount count;
    m_p->cmdBack_Click();
    EXPECT_EQ(m_p->step(), kJudgmentStep);
    EXPECT_FALSE(m_p->commands().canUndo());
    return count.given();
  }

  WizardContext m_ctx;
  RecordingUiServices m_ui;
  testing::NullTradeOffsEvents m_events;
  testing::SequenceRandomSource m_random{{0.1f, 0.7f, 0.4f, 0.3f, 0.9f, 0.2f, 0.5f, 0.8f}};
  std::unique_ptr<TradeOffsAPresenter> m_p;
};

TEST_F(TradeOffsUndoMemoryTest, ASnapshotOfThePageInUseHoldsNoBlockOfItsOwn) {
  load();
  enter(3);
  // The verbal scale in front with its last degree ("Strongly the opposite") chosen, and the
  // focus handed to Enter: the longest texts the page shows.
  m_p->tsComparisonApproaches_Click(2);
  m_p->optPCVerbal_Click(6);
  m_p->scoreBoxKeyPress(0, ScoreEntry::kEnter, 0, 0);
  const JudgmentPage& page = m_p->judgmentPage();
  ASSERT_EQ(page.focus(), "cmdTradeOffEnter");

  const BlockCount count;
  const JudgmentPage::Snapshot s = page.snapshot(1);
  const JudgmentPage::Snapshot copy = s;
  EXPECT_EQ(count.taken(), 0u);
  ASSERT_EQ(copy.slot, 1);
  EXPECT_EQ(copy.tradeOffNo, 3);
}

TEST_F(TradeOffsUndoMemoryTest, BackLetsGoOfAnyHistoryForTheSameBlocks) {
  const std::size_t shortHistory = givenOnBack(62);
  const std::size_t longHistory = givenOnBack(620);
  EXPECT_EQ(longHistory, shortHistory);
}

}  // namespace
}  // namespace tnw::tradeoffs
