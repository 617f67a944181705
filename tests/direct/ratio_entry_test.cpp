#include "direct/core/ratio_bound_check.h"
#include "direct/core/ratio_key_filter.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::direct {
namespace {

wizard::TextBoxState box(const std::string& text, int caret, int selection = 0) {
  return wizard::TextBoxState{text, caret, selection};
}

TEST(RatioKeyFilterTest, ASecondPeriodTypedIntoOnePointFiveIsRemovedAtKeyUp) {
  wizard::TextBoxState b = box("1.5", 3);
  int key = '.';
  EXPECT_EQ(RatioKeyFilter::DoKeyPress(b, key), RatioKeyFilter::KeyAction::Pass);
  b.typeCharacter('.');
  EXPECT_EQ(b.text, "1.5.");
  RatioKeyFilter::CheckPeriod(b);
  EXPECT_EQ(b.text, "1.5");
  EXPECT_EQ(b.selStart, 3);
}

TEST(RatioKeyFilterTest, ASecondPeriodInTheMiddleIsRemovedBeforeTheCaret) {
  wizard::TextBoxState b = box("15.", 1);
  RatioKeyFilter::typeKey(b, '.');
  EXPECT_EQ(b.text, "15.");
  EXPECT_EQ(b.selStart, 1);
}

TEST(RatioKeyFilterTest, OnlyDigitsPeriodAndControlKeysPass) {
  wizard::TextBoxState b = box("", 0);
  for (char c : std::string("1a.-5 e")) RatioKeyFilter::typeKey(b, c);
  EXPECT_EQ(b.text, "1.5");
  RatioKeyFilter::typeKey(b, RatioKeyFilter::kBackspace);
  EXPECT_EQ(b.text, "1.");
}

TEST(RatioKeyFilterTest, TypingReplacesTheSelection) {
  wizard::TextBoxState b = box("0.80", 0, 4);
  RatioKeyFilter::typeKey(b, '2');
  EXPECT_EQ(b.text, "2");
}

TEST(RatioKeyFilterTest, CtrlVAndShiftInsertLeaveTheBoxUnchanged) {
  wizard::TextBoxState b = box("1.2", 3);
  int key = RatioKeyFilter::kCtrlV;
  EXPECT_EQ(RatioKeyFilter::DoKeyPress(b, key), RatioKeyFilter::KeyAction::Discard);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(RatioKeyFilter::typeKey(b, RatioKeyFilter::kCtrlV), RatioKeyFilter::KeyAction::Discard);
  EXPECT_EQ(b.text, "1.2");
  EXPECT_TRUE(RatioKeyFilter::discardKeyDown(RatioKeyFilter::kInsertKeyCode, true));
  EXPECT_FALSE(RatioKeyFilter::discardKeyDown(RatioKeyFilter::kInsertKeyCode, false));
}

TEST(RatioKeyFilterTest, EnterKeepsTheTrimmedTextAndBecomesBackspace) {
  wizard::TextBoxState b = box(" 0.5 ", 5);
  int key = RatioKeyFilter::kEnter;
  EXPECT_EQ(RatioKeyFilter::DoKeyPress(b, key), RatioKeyFilter::KeyAction::Enter);
  EXPECT_EQ(key, RatioKeyFilter::kBackspace);
  EXPECT_EQ(b.text, "0.5");
  EXPECT_EQ(b.selStart, 0);
}

TEST(RatioBoundCheckTest, LowerZeroFailsWithTheFirstMessage) {
  const auto r = RatioBoundCheck::CheckLowerWeightRatio("0", "1.5");
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(r.message,
            "The weight ratio you entered should be greater than zero and less than or equal to "
            "1.5!");
}

TEST(RatioBoundCheckTest, AnEmptyUpperBoxReadsAsZeroSoAPositiveLowerFails) {
  const auto r = RatioBoundCheck::CheckLowerWeightRatio("0.7", "");
  EXPECT_FALSE(r.ok);
  EXPECT_EQ(r.message,
            "The weight ratio you entered should be greater than zero and less than or equal to "
            "0!");
}

TEST(RatioBoundCheckTest, LowerTwoUpperOneFailsBothChecksWithTheOtherBound) {
  const auto lower = RatioBoundCheck::CheckLowerWeightRatio("2", "1");
  EXPECT_FALSE(lower.ok);
  EXPECT_EQ(lower.message,
            "The weight ratio you entered should be greater than zero and less than or equal to "
            "1!");
  const auto upper = RatioBoundCheck::CheckUpperWeightRatio("2", "1");
  EXPECT_FALSE(upper.ok);
  EXPECT_EQ(upper.message, "The weight ratio you entered should be greater than or equal to 2!");
}

TEST(RatioBoundCheckTest, LowerEqualToUpperPassesBothChecks) {
  EXPECT_TRUE(RatioBoundCheck::CheckLowerWeightRatio("0.75", "0.75").ok);
  EXPECT_TRUE(RatioBoundCheck::CheckUpperWeightRatio("0.75", "0.75").ok);
}

TEST(RatioBoundCheckTest, TheUpperCheckHasNoTestAgainstZero) {
  EXPECT_TRUE(RatioBoundCheck::CheckUpperWeightRatio("0", "0").ok);
  EXPECT_TRUE(RatioBoundCheck::CheckUpperWeightRatio("", "").ok);
}

TEST(RatioBoundCheckTest, BoxesAreReadByTheirLeadingNumber) {
  EXPECT_DOUBLE_EQ(RatioBoundCheck::boxValue(" 1.25abc"), 1.25);
  EXPECT_EQ(RatioBoundCheck::boxValue("x"), 0.0);
  EXPECT_EQ(RatioBoundCheck::boxValue(std::string(400, '9')), 0.0);
}

TEST(RatioBoundCheckTest, ARatioTooLargeForANumberIsToldAsSuchInEitherBox) {
  const std::string huge(401, '1');
  EXPECT_TRUE(RatioBoundCheck::beyondRange(huge));
  EXPECT_TRUE(RatioBoundCheck::beyondRange(" 2e400 "));
  EXPECT_FALSE(RatioBoundCheck::beyondRange("2e-400"));
  EXPECT_FALSE(RatioBoundCheck::beyondRange(std::string(401, '0')));
  EXPECT_FALSE(RatioBoundCheck::beyondRange("1e300"));
  EXPECT_FALSE(RatioBoundCheck::beyondRange(""));
  const std::string tooLarge =
      "The weight ratio you entered is too large to be a number the wizard can use!";
  // The upper box holds the huge number: the lower box is not held to it, the upper box says why.
  EXPECT_TRUE(RatioBoundCheck::CheckLowerWeightRatio("1", huge).ok);
  const auto upper = RatioBoundCheck::CheckUpperWeightRatio("1", huge);
  EXPECT_FALSE(upper.ok);
  EXPECT_EQ(upper.message, tooLarge);
  const auto lower = RatioBoundCheck::CheckLowerWeightRatio(huge, "2");
  EXPECT_FALSE(lower.ok);
  EXPECT_EQ(lower.message, tooLarge);
}

}  // namespace
}  // namespace tnw::direct
