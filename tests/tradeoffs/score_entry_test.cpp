#include "tradeoffs/core/score_entry.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

wizard::TextBoxState box(const std::string& text, int selStart, int selLength = 0) {
  return wizard::TextBoxState{text, selStart, selLength, true};
}

TEST(ScoreEntryTest, DigitsAndThePeriodPassOtherPrintableKeysAreDiscarded) {
  wizard::TextBoxState b = box("12", 2);
  EXPECT_EQ(ScoreEntry::DoKeyPress(b, '7'), '7');
  EXPECT_EQ(ScoreEntry::DoKeyPress(b, '.'), '.');
  EXPECT_EQ(ScoreEntry::DoKeyPress(b, 'a'), 0);
  EXPECT_EQ(ScoreEntry::DoKeyPress(b, '-'), 0);  // no sign can be typed
  EXPECT_EQ(ScoreEntry::DoKeyPress(b, '+'), 0);
  EXPECT_EQ(ScoreEntry::DoKeyPress(b, ' '), 0);
  EXPECT_EQ(b.text, "12");
}

TEST(ScoreEntryTest, ControlKeysPassUnchanged) {
  wizard::TextBoxState b = box("1.5", 3);
  EXPECT_EQ(ScoreEntry::DoKeyPress(b, ScoreEntry::kBackspace), ScoreEntry::kBackspace);
  EXPECT_EQ(ScoreEntry::DoKeyPress(b, 3), 3);
  EXPECT_EQ(b.text, "1.5");
}

TEST(ScoreEntryTest, SecondPeriodRightAfterTheFirstCannotAccumulate) {
  wizard::TextBoxState b = box("2.", 2);
  const int key = ScoreEntry::DoKeyPress(b, '.');
  ScoreEntry::applyKey(b, key);
  EXPECT_EQ(b.text, "2.");
  EXPECT_EQ(b.selStart, 2);
}

// Types keys one by one as the box does: the filter, then the box's own editing.
void typeKeys(wizard::TextBoxState& b, const std::string& keys) {
  for (const char k : keys) ScoreEntry::applyKey(b, ScoreEntry::DoKeyPress(b, k));
}

TEST(ScoreEntryTest, ADecimalCanBeTyped) {
  wizard::TextBoxState b = box("", 0);
  typeKeys(b, "30.5");
  EXPECT_EQ(b.text, "30.5");
  EXPECT_EQ(b.selStart, 4);
  typeKeys(b, "25");
  EXPECT_EQ(b.text, "30.525");
}

TEST(ScoreEntryTest, ASecondPeriodIsDroppedWhereverItIsTyped) {
  wizard::TextBoxState b = box("3.25", 4);
  typeKeys(b, ".");
  EXPECT_EQ(b.text, "3.25");
  b.selStart = 0;
  typeKeys(b, ".");
  EXPECT_EQ(b.text, "3.25");
  EXPECT_EQ(b.selStart, 0);
  b.selStart = 3;
  typeKeys(b, "7.");
  EXPECT_EQ(b.text, "3.275");
}

TEST(ScoreEntryTest, APeriodMayReplaceTheSelectedOne) {
  wizard::TextBoxState b = box("3.25", 1, 1);
  EXPECT_FALSE(ScoreEntry::CheckPeriod(b));
  typeKeys(b, ".");
  EXPECT_EQ(b.text, "3.25");
  wizard::TextBoxState all = box("3.25", 0, 4);
  typeKeys(all, "0.5");
  EXPECT_EQ(all.text, "0.5");
  wizard::TextBoxState digits = box("325", 3);
  EXPECT_FALSE(ScoreEntry::CheckPeriod(digits));
  typeKeys(digits, ".");
  EXPECT_EQ(digits.text, "325.");
}

TEST(ScoreEntryTest, TypedKeyReplacesTheSelectionAndBackspaceDeletes) {
  wizard::TextBoxState b = box("3.25", 0, 4);
  ScoreEntry::applyKey(b, ScoreEntry::DoKeyPress(b, '4'));
  EXPECT_EQ(b.text, "4");
  EXPECT_EQ(b.selStart, 1);
  ScoreEntry::applyKey(b, ScoreEntry::DoKeyPress(b, '.'));
  EXPECT_EQ(b.text, "4.");
  ScoreEntry::applyKey(b, ScoreEntry::kBackspace);
  EXPECT_EQ(b.text, "4");
}

TEST(ScoreEntryTest, RangeIncludesBothEndsAndTheMessageShowsSinglePrecisionEnds) {
  EXPECT_FALSE(ScoreEntry::checkRange("0", 0.0f, 10.0f).has_value());
  EXPECT_FALSE(ScoreEntry::checkRange(" 10 ", 0.0f, 10.0f).has_value());
  EXPECT_EQ(ScoreEntry::checkRange("10.01", 0.0f, 10.0f),
            "The data you entered should be in the relevant score range [0, 10]!");
  EXPECT_EQ(ScoreEntry::checkRange("abc", 0.1f, 2.5f),
            "The data you entered should be in the relevant score range [0.1, 2.5]!");
}

TEST(ScoreEntryTest, ReversedRangeAcceptsScoresBetweenItsEndsAndNamesThemAsGiven) {
  EXPECT_FALSE(ScoreEntry::checkRange("30000", 42000.0f, 18000.0f).has_value());
  EXPECT_FALSE(ScoreEntry::checkRange("42000", 42000.0f, 18000.0f).has_value());
  EXPECT_FALSE(ScoreEntry::checkRange("18000", 42000.0f, 18000.0f).has_value());
  EXPECT_EQ(ScoreEntry::checkRange("17999.5", 42000.0f, 18000.0f),
            "The data you entered should be in the relevant score range [42000, 18000]!");
  EXPECT_EQ(ScoreEntry::checkRange("42,001", 42000.0f, 18000.0f),
            "The data you entered should be in the relevant score range [42000, 18000]!");
  // A hundredth of the width, 240; up adds it.
  EXPECT_EQ(ScoreEntry::step("30000", 42000.0f, 18000.0f, true), "30240.0");
  EXPECT_EQ(ScoreEntry::step("30,000", 42000.0f, 18000.0f, false), "29760.0");
}

TEST(ScoreEntryTest, ScoresOfAThousandAndMoreReadBackAcrossTheGroupSeparator) {
  EXPECT_FALSE(ScoreEntry::checkRange("1,234.5", 1000.0f, 2000.0f).has_value());
  EXPECT_EQ(ScoreEntry::step("1,234.5", 0.0f, 2000.0f, true), "1254.5");
}

TEST(ScoreEntryTest, ToolbarStepIsOneHundredthOfTheRangeWrittenZeroPointZeroHash) {
  EXPECT_EQ(ScoreEntry::step("3.0", 0.0f, 10.0f, true), "3.1");
  EXPECT_EQ(ScoreEntry::step("3.0", 0.0f, 10.0f, false), "2.9");
  EXPECT_EQ(ScoreEntry::step("5", 0.0f, 1.0f, true), "5.01");
  EXPECT_EQ(ScoreEntry::step("5", 0.0f, 100.0f, true), "6.0");
}

}  // namespace
}  // namespace tnw::tradeoffs
