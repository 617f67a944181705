#include "wizard/core/command_stack.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <stdexcept>
#include <string>
#include <vector>

namespace tnw::wizard {
namespace {

// A value changed by commands that set it, each remembering the value it replaced.
class Counter {
 public:
  // Sets the value as a command the stack can take back.
  void set(CommandStack<int>& stack, int value) {
    const int before = m_value;
    m_value = value;
    stack.push(before, value);
  }
  // Puts back a value the stack kept.
  void restore(int value) { m_value = value; }
  int value() const { return m_value; }

 private:
  int m_value = 0;
};

TEST(CommandStackTest, AnEmptyStackHasNothingToUndoOrRedo) {
  CommandStack<int> stack;
  const auto put = [](int) { ADD_FAILURE() << "nothing to put back"; };
  EXPECT_FALSE(stack.canUndo());
  EXPECT_FALSE(stack.canRedo());
  EXPECT_FALSE(stack.undo(put));
  EXPECT_FALSE(stack.redo(put));
  EXPECT_EQ(stack.undoCount(), 0u);
  EXPECT_EQ(stack.redoCount(), 0u);
}

TEST(CommandStackTest, UndoTakesCommandsBackInReverseOrderAndRedoMakesThemAgain) {
  CommandStack<int> stack;
  Counter c;
  const auto put = [&c](int value) { c.restore(value); };
  c.set(stack, 1);
  c.set(stack, 2);
  c.set(stack, 3);
  EXPECT_EQ(stack.undoCount(), 3u);
  ASSERT_TRUE(stack.undo(put));
  EXPECT_EQ(c.value(), 2);
  ASSERT_TRUE(stack.undo(put));
  EXPECT_EQ(c.value(), 1);
  EXPECT_EQ(stack.undoCount(), 1u);
  EXPECT_EQ(stack.redoCount(), 2u);
  ASSERT_TRUE(stack.redo(put));
  EXPECT_EQ(c.value(), 2);
  ASSERT_TRUE(stack.redo(put));
  EXPECT_EQ(c.value(), 3);
  EXPECT_FALSE(stack.redo(put));
  EXPECT_EQ(c.value(), 3);
  ASSERT_TRUE(stack.undo(put));
  ASSERT_TRUE(stack.undo(put));
  ASSERT_TRUE(stack.undo(put));
  EXPECT_EQ(c.value(), 0);
  EXPECT_FALSE(stack.undo(put));
  EXPECT_EQ(c.value(), 0);
  EXPECT_EQ(stack.redoCount(), 3u);
}

TEST(CommandStackTest, ANewCommandClearsWhatCouldBeRedone) {
  CommandStack<int> stack;
  Counter c;
  const auto put = [&c](int value) { c.restore(value); };
  c.set(stack, 1);
  c.set(stack, 2);
  stack.undo(put);
  ASSERT_TRUE(stack.canRedo());
  c.set(stack, 5);
  EXPECT_FALSE(stack.canRedo());
  EXPECT_FALSE(stack.redo(put));
  EXPECT_EQ(c.value(), 5);
  stack.undo(put);
  EXPECT_EQ(c.value(), 1);
}

TEST(CommandStackTest, ClearForgetsBothHistories) {
  CommandStack<int> stack;
  Counter c;
  const auto put = [&c](int value) { c.restore(value); };
  c.set(stack, 1);
  c.set(stack, 2);
  stack.undo(put);
  stack.clear();
  EXPECT_FALSE(stack.canUndo());
  EXPECT_FALSE(stack.canRedo());
  EXPECT_FALSE(stack.undo(put));
  EXPECT_EQ(c.value(), 1);
}

TEST(CommandStackTest, ACommandThatFailsStaysWhereItWas) {
  CommandStack<int> stack;
  bool fail = true;
  int undone = 0;
  stack.push(0, 1);
  const auto put = [&](int) {
    if (fail) throw std::runtime_error("no");
    ++undone;
  };
  EXPECT_THROW(stack.undo(put), std::runtime_error);
  EXPECT_TRUE(stack.canUndo());
  EXPECT_FALSE(stack.canRedo());
  fail = false;
  EXPECT_TRUE(stack.undo(put));
  EXPECT_EQ(undone, 1);
  EXPECT_TRUE(stack.canRedo());
}

TEST(CommandStackTest, TheDiscardQuestionCountsTheJudgments) {
  EXPECT_EQ(CommandStack<int>::discardQuestion(1), "Discard 1 judgment?");
  EXPECT_EQ(CommandStack<int>::discardQuestion(2), "Discard 2 judgments?");
  EXPECT_EQ(CommandStack<int>::discardQuestion(12), "Discard 12 judgments?");
}

TEST(CommandStackTest, TheButtonsMnemonicsAreTheShortcutsLetters) {
  EXPECT_EQ(std::string(CommandStack<int>::kUndoCaption), "Undo (&Z)");
  EXPECT_EQ(std::string(CommandStack<int>::kRedoCaption), "Redo (&Y)");
}

}  // namespace
}  // namespace tnw::wizard
