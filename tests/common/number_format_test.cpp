#include "common/core/number_format.h"

// Std
#include <cstdint>
#include <limits>
#include <ostream>
#include <string>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

struct FormatCase {
  double value;
  const char* pattern;
  const char* text;
};

std::ostream& operator<<(std::ostream& os, const FormatCase& c) {
  return os << c.value << " as \"" << c.pattern << "\"";
}

class FormatNumberTest : public ::testing::TestWithParam<FormatCase> {};

TEST_P(FormatNumberTest, WritesTheHostLanguageText) {
  EXPECT_EQ(formatNumber(GetParam().value, GetParam().pattern), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Ratios, FormatNumberTest,
    ::testing::Values(FormatCase{0.8, "0.00", "0.80"}, FormatCase{1, "0.00", "1.00"},
                      FormatCase{0.125, "0.00", "0.13"}, FormatCase{-0.125, "0.00", "-0.13"},
                      FormatCase{2.675, "0.00", "2.68"}, FormatCase{0.0, "0.00", "0.00"},
                      FormatCase{1e-10, "0.00", "0.00"}, FormatCase{-0.001, "0.00", "-0.00"},
                      FormatCase{0.995, "0.00", "1.00"}, FormatCase{9.995, "0.00", "10.00"},
                      FormatCase{1234567.891, "0.00", "1234567.89"},
                      FormatCase{1e20, "0.00", "100000000000000000000.00"}));

INSTANTIATE_TEST_SUITE_P(Weights, FormatNumberTest,
                         ::testing::Values(FormatCase{0.5, "0.0000", "0.5000"},
                                           FormatCase{1.0 / 3.0, "0.0000", "0.3333"},
                                           FormatCase{2.0 / 3.0, "0.0000", "0.6667"},
                                           FormatCase{0.00005, "0.0000", "0.0001"},
                                           FormatCase{0.00004999, "0.0000", "0.0000"},
                                           FormatCase{-0.12345, "0.0000", "-0.1235"},
                                           FormatCase{0.0, "0.0000", "0.0000"}));

INSTANTIATE_TEST_SUITE_P(
    OneOrTwoDecimals, FormatNumberTest,
    ::testing::Values(FormatCase{1, "0.0#", "1.0"}, FormatCase{1.2, "0.0#", "1.2"},
                      FormatCase{1.25, "0.0#", "1.25"}, FormatCase{1.255, "0.0#", "1.26"},
                      FormatCase{0.0, "0.0#", "0.0"}, FormatCase{-3.999, "0.0#", "-4.0"}));

INSTANTIATE_TEST_SUITE_P(
    Scores, FormatNumberTest,
    ::testing::Values(
        FormatCase{1234567.891, "###,##0.0#", "1,234,567.89"},
        FormatCase{1000, "###,##0.0#", "1,000.0"}, FormatCase{999.999, "###,##0.0#", "1,000.0"},
        FormatCase{0.0, "###,##0.0#", "0.0"}, FormatCase{-1234.5, "###,##0.0#", "-1,234.5"},
        FormatCase{0.125, "###,##0.0#", "0.13"}, FormatCase{123, "###,##0.0#", "123.0"},
        FormatCase{5, "###,##0.##", "5."}, FormatCase{1234.5, "###,##0.##", "1,234.5"},
        FormatCase{999.995, "###,##0.##", "1,000."}, FormatCase{0.004, "###,##0.##", "0."},
        FormatCase{-20000.25, "###,##0.##", "-20,000.25"}, FormatCase{0.0, "###,##0.##", "0."}));

INSTANTIATE_TEST_SUITE_P(ScaleLabels, FormatNumberTest,
                         ::testing::Values(FormatCase{1234.56789, "#,##0.0000", "1,234.5679"},
                                           FormatCase{0.5, "#,##0.0000", "0.5000"},
                                           FormatCase{0.0, "#,##0.0000", "0.0000"},
                                           FormatCase{1e15, "#,##0.0000",
                                                      "1,000,000,000,000,000.0000"},
                                           FormatCase{-0.00005, "#,##0.0000", "-0.0001"}));

INSTANTIATE_TEST_SUITE_P(WholeNumbers, FormatNumberTest,
                         ::testing::Values(FormatCase{0.0, "###", ""}, FormatCase{0.4, "###", ""},
                                           FormatCase{0.5, "###", "1"}, FormatCase{1.5, "###", "2"},
                                           FormatCase{2.5, "###", "3"},
                                           FormatCase{-2.5, "###", "-3"},
                                           FormatCase{1234, "###", "1234"},
                                           FormatCase{12345.6, "###", "12346"}));

TEST(FormatNumberTest, NonFiniteGivesTheEmptyText) {
  EXPECT_EQ(formatNumber(std::numeric_limits<double>::quiet_NaN(), "0.00"), "");
  EXPECT_EQ(formatNumber(std::numeric_limits<double>::infinity(), "0.0000"), "");
}

struct GeneralCase {
  double value;
  const char* text;
};

std::ostream& operator<<(std::ostream& os, const GeneralCase& c) { return os << c.text; }

class GeneralTextTest : public ::testing::TestWithParam<GeneralCase> {};

TEST_P(GeneralTextTest, WritesFifteenSignificantDigits) {
  EXPECT_EQ(generalText(GetParam().value), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Table, GeneralTextTest,
    ::testing::Values(GeneralCase{0.0, "0"}, GeneralCase{-0.0, "0"}, GeneralCase{0.5, "0.5"},
                      GeneralCase{-0.5, "-0.5"}, GeneralCase{100, "100"},
                      GeneralCase{1.0 / 3.0, "0.333333333333333"},
                      GeneralCase{2.0 / 3.0, "0.666666666666667"}, GeneralCase{0.1 + 0.2, "0.3"},
                      GeneralCase{123456789012345.0, "123456789012345"}, GeneralCase{1e15, "1E+15"},
                      GeneralCase{1234567890123456789.0, "1.23456789012346E+18"},
                      GeneralCase{0.0001, "0.0001"}, GeneralCase{0.00001, "1E-05"},
                      GeneralCase{-1.5e-7, "-1.5E-07"}, GeneralCase{1e100, "1E+100"},
                      GeneralCase{2.5, "2.5"}));

TEST(GeneralTextTest, SingleKeepsSevenSignificantDigits) {
  EXPECT_EQ(generalTextSingle(0.1f), "0.1");
  EXPECT_EQ(generalTextSingle(1.0f / 3.0f), "0.3333333");
  EXPECT_EQ(generalTextSingle(1234567.0f), "1234567");
  EXPECT_EQ(generalTextSingle(12345678.0f), "1.234568E+07");
  EXPECT_EQ(generalTextSingle(-0.5f), "-0.5");
  EXPECT_EQ(generalTextSingle(0.0f), "0");
}

TEST(GeneralTextTest, CurrencyWritesUpToFourDecimals) {
  EXPECT_EQ(generalText(Currency::fromTicks(1235)), "0.1235");
  EXPECT_EQ(generalText(Currency::fromTicks(10000)), "1");
  EXPECT_EQ(generalText(Currency::fromTicks(-5000)), "-0.5");
  EXPECT_EQ(generalText(Currency::fromTicks(0)), "0");
  EXPECT_EQ(generalText(Currency::fromTicks(123456789)), "12345.6789");
  EXPECT_EQ(generalText(Currency::fromTicks(std::numeric_limits<std::int64_t>::min())),
            "-922337203685477.5808");
}

struct ReadCase {
  const char* text;
  double value;
};

std::ostream& operator<<(std::ostream& os, const ReadCase& c) {
  return os << "\"" << c.text << "\"";
}

class LeadingNumberTest : public ::testing::TestWithParam<ReadCase> {};

TEST_P(LeadingNumberTest, ReadsTheLeadingNumber) {
  EXPECT_DOUBLE_EQ(leadingNumber(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Table, LeadingNumberTest,
    ::testing::Values(
        ReadCase{"", 0}, ReadCase{"abc", 0}, ReadCase{"12abc", 12}, ReadCase{"  3.5  ", 3.5},
        ReadCase{"-2.5", -2.5}, ReadCase{"+4", 4}, ReadCase{"- 7", -7}, ReadCase{"1 2 3", 123},
        ReadCase{"1\t2\n3", 123}, ReadCase{"1,234.56", 1234.56},
        ReadCase{"1,234,567.89", 1234567.89}, ReadCase{"1,,2", 1}, ReadCase{",5", 0},
        ReadCase{"1.5e3", 1500}, ReadCase{"1.5E-2", 0.015}, ReadCase{"2D2", 200}, ReadCase{"1e", 1},
        ReadCase{"1e+", 1}, ReadCase{".5", 0.5}, ReadCase{"5.", 5}, ReadCase{"1.2.3", 1.2},
        ReadCase{"&HFF", 255}, ReadCase{"&HFFFF", -1}, ReadCase{"&H10000", 65536},
        ReadCase{"&O17", 15}, ReadCase{"&", 0}, ReadCase{"&Z1", 0}, ReadCase{"1e400", 0},
        ReadCase{"1e-400", 0}, ReadCase{"--5", 0}, ReadCase{"0.00", 0}, ReadCase{"-0.5", -0.5},
        ReadCase{"0 ", 0}, ReadCase{"1", 1}, ReadCase{"1\r2", 1}, ReadCase{"\r5", 0}));

TEST(LeadingNumberTest, ReadsBackWhatOurFormatsWrite) {
  const double values[] = {0.0, 0.8, 1.25, 1234.5, 1234567.89, -98765.4321, 1e9};
  const char* patterns[] = {"0.00",       "0.0000",     "0.0#", "###,##0.0#",
                            "###,##0.##", "#,##0.0000", "###"};
  for (double v : values) {
    for (const char* p : patterns) {
      const std::string text = formatNumber(v, p);
      EXPECT_EQ(formatNumber(leadingNumber(text), p), text) << v << " as " << p;
    }
  }
}

}  // namespace
}  // namespace tnw
