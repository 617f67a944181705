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
  void set(CommandStack& stack, int value) {
    const int before = m_value;
    m_value = value;
    stack.push({[this, before] { m_value = before; }, [this, value] { m_value = value; }});
  }
  int value() const { return m_value; }

 private:
  int m_value = 0;
};

TEST(CommandStackTest, AnEmptyStackHasNothingToUndoOrRedo) {
  CommandStack stack;
  EXPECT_FALSE(stack.canUndo());
  EXPECT_FALSE(stack.canRedo());
  EXPECT_FALSE(stack.undo());
  EXPECT_FALSE(stack.redo());
  EXPECT_EQ(stack.undoCount(), 0u);
  EXPECT_EQ(stack.redoCount(), 0u);
}

TEST(CommandStackTest, UndoTakesCommandsBackInReverseOrderAndRedoMakesThemAgain) {
  CommandStack stack;
  Counter c;
  c.set(stack, 1);
  c.set(stack, 2);
  c.set(stack, 3);
  EXPECT_EQ(stack.undoCount(), 3u);
  ASSERT_TRUE(stack.undo());
  EXPECT_EQ(c.value(), 2);
  ASSERT_TRUE(stack.undo());
  EXPECT_EQ(c.value(), 1);
  EXPECT_EQ(stack.undoCount(), 1u);
  EXPECT_EQ(stack.redoCount(), 2u);
  ASSERT_TRUE(stack.redo());
  EXPECT_EQ(c.value(), 2);
  ASSERT_TRUE(stack.redo());
  EXPECT_EQ(c.value(), 3);
  EXPECT_FALSE(stack.redo());
  EXPECT_EQ(c.value(), 3);
  ASSERT_TRUE(stack.undo());
  ASSERT_TRUE(stack.undo());
  ASSERT_TRUE(stack.undo());
  EXPECT_EQ(c.value(), 0);
  EXPECT_FALSE(stack.undo());
  EXPECT_EQ(c.value(), 0);
  EXPECT_EQ(stack.redoCount(), 3u);
}

TEST(CommandStackTest, ANewCommandClearsWhatCouldBeRedone) {
  CommandStack stack;
  Counter c;
  c.set(stack, 1);
  c.set(stack, 2);
  stack.undo();
  ASSERT_TRUE(stack.canRedo());
  c.set(stack, 5);
  EXPECT_FALSE(stack.canRedo());
  EXPECT_FALSE(stack.redo());
  EXPECT_EQ(c.value(), 5);
  stack.undo();
  EXPECT_EQ(c.value(), 1);
}

TEST(CommandStackTest, ClearForgetsBothHistories) {
  CommandStack stack;
  Counter c;
  c.set(stack, 1);
  c.set(stack, 2);
  stack.undo();
  stack.clear();
  EXPECT_FALSE(stack.canUndo());
  EXPECT_FALSE(stack.canRedo());
  EXPECT_FALSE(stack.undo());
  EXPECT_EQ(c.value(), 1);
}

TEST(CommandStackTest, ACommandThatFailsStaysWhereItWas) {
  CommandStack stack;
  bool fail = true;
  int undone = 0;
  stack.push({[&] {
                if (fail) throw std::runtime_error("no");
                ++undone;
              },
              [] {}});
  EXPECT_THROW(stack.undo(), std::runtime_error);
  EXPECT_TRUE(stack.canUndo());
  EXPECT_FALSE(stack.canRedo());
  fail = false;
  EXPECT_TRUE(stack.undo());
  EXPECT_EQ(undone, 1);
  EXPECT_TRUE(stack.canRedo());
}

TEST(CommandStackTest, TheDiscardQuestionCountsTheJudgments) {
  EXPECT_EQ(CommandStack::discardQuestion(1), "Discard 1 judgment?");
  EXPECT_EQ(CommandStack::discardQuestion(2), "Discard 2 judgments?");
  EXPECT_EQ(CommandStack::discardQuestion(12), "Discard 12 judgments?");
}

TEST(CommandStackTest, TheButtonsMnemonicsAreTheShortcutsLetters) {
  EXPECT_EQ(std::string(CommandStack::kUndoCaption), "Undo (&Z)");
  EXPECT_EQ(std::string(CommandStack::kRedoCaption), "Redo (&Y)");
}

}  // namespace
}  // namespace tnw::wizard
