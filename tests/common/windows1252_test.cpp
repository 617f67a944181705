#include "common/core/windows1252.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

TEST(Windows1252Test, ConvertsEveryByteToUtf8AndBack) {
  std::string all;
  for (int b = 1; b < 256; ++b) all.push_back(static_cast<char>(b));
  const std::string utf8 = windows1252ToUtf8(all);
  EXPECT_EQ(utf8ToWindows1252(utf8), all);
}

TEST(Windows1252Test, MapsTheHighBytesToTheirCharacters) {
  EXPECT_EQ(windows1252ToUtf8("\x80"), "€");
  EXPECT_EQ(windows1252ToUtf8("Gr\xF6\xDF"
                              "e"),
            "Größe");
  EXPECT_EQ(windows1252ToUtf8("\x93quoted\x94"), "“quoted”");
  EXPECT_EQ(windows1252ToUtf8("\x81"), "\xC2\x81");
  EXPECT_EQ(windows1252ToUtf8(""), "");
}

TEST(Windows1252Test, CharactersOutsideTheCodePageBecomeQuestionMarks) {
  EXPECT_EQ(utf8ToWindows1252("a→b"), "a?b");
  EXPECT_EQ(utf8ToWindows1252("😀"), "?");
  EXPECT_EQ(utf8ToWindows1252("\xE2\x82"), "?");  // cut short
  EXPECT_EQ(utf8ToWindows1252("\xFF"
                              "x"),
            "?x");
  EXPECT_EQ(utf8ToWindows1252("€ 5"), "\x80 5");
}

}  // namespace
}  // namespace tnw
