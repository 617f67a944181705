#pragma once

// Qt
#include <QFont>

// Std
#include <array>

class QTableWidget;
class QString;

namespace tnw::tradeoffs {

// Fits a grid's column to its cells as QTableView::resizeColumnToContents does, without asking
// the delegate for every cell's size. The style measures an item's text as the width of its laid
// out line, rounded up, plus margins that are the same for every item of a column; so the widest
// cell is the one whose text runs furthest, and only that one is measured by the delegate. The
// texts of a column of numbers (digits, signs, points, commas, per cent) are compared by their
// advances, summed from each character's advance and the kerning of each pair of neighbours, with
// what the last glyph reaches past its advance, kept per font: exact sums of the same advances
// the text layout adds. A column with any other text,
// an item with a font, icon, check box or size of its own, or a delegate other than ours is left
// to resizeColumnToContents.
class GridColumnWidths {
 public:
  // Gives `column` of `table` the width resizeColumnToContents would give it.
  static void fit(QTableWidget& table, int column);

  // How many columns were left to resizeColumnToContents (for tests).
  static int leftToQt();

 private:
  // The characters of a plain number.
  static constexpr int kChars = 15;

  // The advance of `text` in the kept font, or a negative number when a character is not a
  // number's.
  double advance(const QString& text);
  void useFont(const QFont& font);
  double single(int c);
  double kerning(int a, int b);
  double overhang(int c);

  QFont m_font;
  bool m_hasFont = false;
  std::array<double, kChars> m_single{};
  std::array<bool, kChars> m_hasSingle{};
  std::array<double, kChars * kChars> m_kerning{};
  std::array<bool, kChars * kChars> m_hasKerning{};
  std::array<double, kChars> m_overhang{};
  std::array<bool, kChars> m_hasOverhang{};
};

}  // namespace tnw::tradeoffs
