#include "wizard/core/wizard_presenter.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <string>
#include <vector>

namespace tnw::wizard {
namespace {

// A page that logs what the presenter asks of it.
class LoggingPage : public WizardPage {
 public:
  LoggingPage(std::string name, int next, std::vector<std::string>& log)
      : m_name(std::move(name)), m_next(next), m_log(log) {}

  void initializePage() override { m_log.push_back("initialize " + m_name); }
  void cleanupPage() override { m_log.push_back("cleanup " + m_name); }
  void revisitPage() override { m_log.push_back("revisit " + m_name); }
  int nextId() const override { return m_next; }
  bool isComplete() const override { return complete; }

  bool complete = true;

 private:
  std::string m_name;
  int m_next;
  std::vector<std::string>& m_log;
};

// Three pages in a row, the way the dialogs add theirs.
class ThreeSteps : public WizardPresenter {
 public:
  explicit ThreeSteps(std::vector<std::string>& log)
      : first("first", 1, log), second("second", 2, log), third("third", kNoNext, log) {
    addPage(first);
    addPage(second);
    addPage(third);
    setCaption("Three steps");
  }

  bool next() { return advance(); }
  bool back() { return retreat(); }
  void notify() const { changed(); }

  static constexpr int kNoNext = WizardPage::kNoNextPage;
  LoggingPage first;
  LoggingPage second;
  LoggingPage third;
};

TEST(WizardPresenterTest, NextEntersTheNamedPageAndBackRevisitsTheOneBefore) {
  std::vector<std::string> log;
  ThreeSteps wizard(log);
  EXPECT_EQ(wizard.stepCount(), 3);
  EXPECT_EQ(wizard.step(), 0);

  EXPECT_TRUE(wizard.next());
  EXPECT_TRUE(wizard.next());
  EXPECT_EQ(wizard.step(), 2);
  EXPECT_FALSE(wizard.next());  // the last page names no next one
  EXPECT_TRUE(wizard.back());
  EXPECT_EQ(wizard.step(), 1);

  const std::vector<std::string> expected{"initialize second", "initialize third", "cleanup third",
                                          "revisit second"};
  EXPECT_EQ(log, expected);
}

TEST(WizardPresenterTest, AnIncompletePageKeepsNextFromMoving) {
  std::vector<std::string> log;
  ThreeSteps wizard(log);
  wizard.first.complete = false;
  EXPECT_FALSE(wizard.next());
  EXPECT_EQ(wizard.step(), 0);
  EXPECT_TRUE(log.empty());
}

TEST(WizardPresenterTest, BackOnTheFirstStepLeavesEveryPageAlone) {
  std::vector<std::string> log;
  ThreeSteps wizard(log);
  EXPECT_FALSE(wizard.back());
  EXPECT_EQ(wizard.step(), 0);
  EXPECT_TRUE(log.empty());
}

TEST(WizardPresenterTest, TheOneChangeListenerHearsEveryChangeUntilRemoved) {
  std::vector<std::string> log;
  ThreeSteps wizard(log);
  int heard = 0;
  wizard.setChangeListener([&heard] { ++heard; });
  wizard.notify();
  wizard.notify();
  wizard.setChangeListener(nullptr);
  wizard.notify();
  EXPECT_EQ(heard, 2);
  EXPECT_EQ(wizard.caption(), "Three steps");
  EXPECT_EQ(wizard.cmdNext().caption, "&Next >");
  EXPECT_EQ(wizard.cmdBack().caption, "< &Back");
}

}  // namespace
}  // namespace tnw::wizard
