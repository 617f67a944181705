#include "tradeoffs/ui/grid_column_widths.h"

#include "tradeoffs/ui/item_text_delegate.h"

// Qt
#include <QFontMetricsF>
#include <QHeaderView>
#include <QStyleOptionViewItem>
#include <QTableWidget>
#include <QTextLayout>

namespace tnw::tradeoffs {

namespace {

// The characters whose advances are kept, in the order of their indexes.
constexpr char16_t kNumberChars[] = u"0123456789.,-+%";

int charIndex(char16_t c) {
  if (c >= u'0' && c <= u'9') return c - u'0';
  switch (c) {
    case u'.':
      return 10;
    case u',':
      return 11;
    case u'-':
      return 12;
    case u'+':
      return 13;
    case u'%':
      return 14;
    default:
      return -1;
  }
}

// Whether the item is drawn and measured with the view's own options: no font, icon, check box
// or size of its own.
bool plainItem(const QTableWidgetItem& item) {
  return !item.data(Qt::FontRole).isValid() && !item.data(Qt::DecorationRole).isValid() &&
         !item.data(Qt::CheckStateRole).isValid() && !item.data(Qt::SizeHintRole).isValid();
}

// The options the view measures its items with (QAbstractItemView's, for a table).
QStyleOptionViewItem viewOption(const QTableWidget& table) {
  QStyleOptionViewItem option;
  option.initFrom(&table);
  option.state &= ~(QStyle::State_MouseOver | QStyle::State_HasFocus);
  if (!table.hasFocus()) option.state &= ~QStyle::State_Active;
  option.font = table.font();
  const int icon = table.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &table);
  option.decorationSize = table.iconSize().isValid() ? table.iconSize() : QSize(icon, icon);
  option.decorationPosition = QStyleOptionViewItem::Left;
  option.decorationAlignment = Qt::AlignCenter;
  option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
  option.textElideMode = table.textElideMode();
  option.showDecorationSelected = true;
  if (table.wordWrap()) option.features = QStyleOptionViewItem::WrapText;
  option.locale = table.locale();
  option.locale.setNumberOptions(QLocale::OmitGroupSeparator);
  option.widget = &table;
  return option;
}

int leftCount = 0;

}  // namespace

int GridColumnWidths::leftToQt() { return leftCount; }

void GridColumnWidths::useFont(const QFont& font) {
  if (m_hasFont && font == m_font) return;
  m_font = font;
  m_hasFont = true;
  m_hasSingle.fill(false);
  m_hasKerning.fill(false);
  m_hasOverhang.fill(false);
}

double GridColumnWidths::single(int c) {
  if (!m_hasSingle[static_cast<std::size_t>(c)]) {
    const QFontMetricsF metrics(m_font);
    m_single[static_cast<std::size_t>(c)] =
        metrics.horizontalAdvance(QString(QChar(kNumberChars[c])));
    m_hasSingle[static_cast<std::size_t>(c)] = true;
  }
  return m_single[static_cast<std::size_t>(c)];
}

double GridColumnWidths::overhang(int c) {
  if (!m_hasOverhang[static_cast<std::size_t>(c)]) {
    // A line of text is as wide as its advance and, where its last glyph reaches past its
    // advance (as a slanted one does), that much more.
    QTextLayout layout(QString(QChar(kNumberChars[c])), m_font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1e6);
    layout.endLayout();
    m_overhang[static_cast<std::size_t>(c)] = line.naturalTextWidth() - single(c);
    m_hasOverhang[static_cast<std::size_t>(c)] = true;
  }
  return m_overhang[static_cast<std::size_t>(c)];
}

double GridColumnWidths::kerning(int a, int b) {
  const auto at = static_cast<std::size_t>(a * kChars + b);
  if (!m_hasKerning[at]) {
    const QFontMetricsF metrics(m_font);
    const QChar pair[2] = {QChar(kNumberChars[a]), QChar(kNumberChars[b])};
    m_kerning[at] = metrics.horizontalAdvance(QString(pair, 2)) - single(a) - single(b);
    m_hasKerning[at] = true;
  }
  return m_kerning[at];
}

double GridColumnWidths::advance(const QString& text) {
  double sum = 0.0;
  int previous = -1;
  for (const QChar ch : text) {
    const int c = charIndex(ch.unicode());
    if (c < 0) return -1.0;
    sum += single(c);
    if (previous >= 0) sum += kerning(previous, c);
    previous = c;
  }
  return previous >= 0 ? sum + overhang(previous) : sum;
}

void GridColumnWidths::fit(QTableWidget& table, int column) {
  thread_local GridColumnWidths kept;
  QHeaderView* header = table.horizontalHeader();
  auto* delegate = qobject_cast<KeptSizeDelegate*>(table.itemDelegate());
  const int precision = header->resizeContentsPrecision();
  // Past the header's precision, Qt measures only some of the rows.
  const bool ours = delegate != nullptr && table.itemDelegateForColumn(column) == nullptr &&
                    !header->isHidden() && column >= 0 && column < table.columnCount() &&
                    (precision < 0 || table.rowCount() <= precision);
  // The cell whose text runs furthest; each text's advance is compared exactly.
  int widest = -1;
  double furthest = -1.0;
  bool numbers = ours;
  if (ours) kept.useFont(table.font());
  for (int row = 0; numbers && row < table.rowCount(); ++row) {
    if (table.isRowHidden(row)) continue;
    const QTableWidgetItem* item = table.item(row, column);
    numbers = item != nullptr && plainItem(*item) && table.itemDelegateForRow(row) == nullptr;
    if (!numbers) break;
    const double advance = kept.advance(item->text());
    numbers = advance >= 0.0;
    if (numbers && advance > furthest) {
      furthest = advance;
      widest = row;
    }
  }
  if (!numbers) {
    ++leftCount;
    table.resizeColumnToContents(column);
    return;
  }
  table.ensurePolished();
  int content = 0;
  if (widest >= 0) {
    content = delegate->sizeHint(viewOption(table), table.model()->index(widest, column)).width();
  }
  if (table.showGrid()) content += 1;
  header->resizeSection(column, qMax(content, header->sectionSizeHint(column)));
}

}  // namespace tnw::tradeoffs
