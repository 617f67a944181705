#include "common/core/table_text.h"

#include "common/core/number_format.h"

// Std
#include <locale>
#include <string>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

// A locale whose numbers are written with a decimal comma, as in German.
struct DecimalComma : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
};

TEST(TableTextTest, TabSeparatedTextHasOneLinePerRow) {
  const TextTable t = {{"Attributes", "Weights"}, {"Price", "0.2500"}, {"Safety", "0.7500"}};
  EXPECT_EQ(TableText::toTabSeparated(t),
            "Attributes\tWeights\r\nPrice\t0.2500\r\nSafety\t0.7500\r\n");
}

TEST(TableTextTest, TabSeparatedTextKeepsEachCellInItsCell) {
  const TextTable t = {{"a\tb", "line\none", "cr\rlf"}};
  EXPECT_EQ(TableText::toTabSeparated(t), "a b\tline one\tcr lf\r\n");
}

TEST(TableTextTest, ShortRowsArePaddedWithEmptyCells) {
  const TextTable t = {{"ID", "Attributes", "Weights"}, {"1"}};
  EXPECT_EQ(TableText::toTabSeparated(t), "ID\tAttributes\tWeights\r\n1\t\t\r\n");
  EXPECT_EQ(TableText::toCsv(t), "ID,Attributes,Weights\r\n1,,\r\n");
}

TEST(TableTextTest, EmptyTableGivesEmptyText) {
  EXPECT_EQ(TableText::toTabSeparated({}), "");
  EXPECT_EQ(TableText::toCsv({}), "");
}

TEST(TableTextTest, CsvQuotesOnlyTheFieldsThatNeedIt) {
  EXPECT_EQ(TableText::csvField("Price"), "Price");
  EXPECT_EQ(TableText::csvField(""), "");
  EXPECT_EQ(TableText::csvField("0.2000,     0.2500"), "\"0.2000,     0.2500\"");
  EXPECT_EQ(TableText::csvField("The \"best\" car"), "\"The \"\"best\"\" car\"");
  EXPECT_EQ(TableText::csvField("two\r\nlines"), "\"two\r\nlines\"");
  EXPECT_EQ(TableText::csvField("new\nline"), "\"new\nline\"");
  EXPECT_EQ(TableText::csvField(" padded "), "\" padded \"");
  EXPECT_EQ(TableText::csvField("\""), "\"\"\"\"");
}

TEST(TableTextTest, CsvOfTheDirectGridQuotesTheRangeColumn) {
  const TextTable t = {{"ID", "Attributes", "Weights", "Middle Points", "Weight ranges"},
                       {"1", "Price, per year", "W1", "0.3250", "0.4000,     0.2500"}};
  EXPECT_EQ(TableText::toCsv(t),
            "ID,Attributes,Weights,Middle Points,Weight ranges\r\n"
            "1,\"Price, per year\",W1,0.3250,\"0.4000,     0.2500\"\r\n");
}

TEST(TableTextTest, NumbersKeepTheGridsDecimalPointInAnyLocale) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
  const TextTable t = {
      {"Weights"}, {formatNumber(0.25, "0.0000")}, {formatNumber(1234.5, "#,##0.0000")}};
  const std::string csv = TableText::toCsv(t);
  const std::string tsv = TableText::toTabSeparated(t);
  std::locale::global(before);
  EXPECT_EQ(csv, "Weights\r\n0.2500\r\n\"1,234.5000\"\r\n");
  EXPECT_EQ(tsv, "Weights\r\n0.2500\r\n1,234.5000\r\n");
}

}  // namespace
}  // namespace tnw
