#include "tradeoffs/ui/item_text_delegate.h"

// Qt
#include <QApplication>
#include <QListView>
#include <QPainter>
#include <QStyle>

namespace tnw::tradeoffs {

namespace {

// The cache holds the texts of one dialog's lists and grids; it is emptied when it grows past
// them, as when the model changes.
constexpr qsizetype kMostTexts = 512;

}  // namespace

KeptSizeDelegate::KeptSizeDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

QSize KeptSizeDelegate::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  QStyleOptionViewItem opt = option;
  initStyleOption(&opt, index);
  const bool keepable = !index.data(Qt::SizeHintRole).isValid() && opt.icon.isNull() &&
                        !(opt.features & QStyleOptionViewItem::HasCheckIndicator);
  if (!keepable) {
    ++m_measured;
    return QStyledItemDelegate::sizeHint(option, index);
  }
  const QWidget* widget = opt.widget;
  Kept key;
  key.font = opt.font;
  key.rect = opt.rect.size();
  key.features = static_cast<int>(opt.features);
  key.alignment = static_cast<int>(opt.displayAlignment);
  key.state = static_cast<int>(opt.state);
  key.decorationSize = opt.decorationSize;
  key.decorationPosition = static_cast<int>(opt.decorationPosition);
  key.elideMode = static_cast<int>(opt.textElideMode);
  key.direction = static_cast<int>(opt.direction);
  key.style = widget != nullptr ? widget->style() : QApplication::style();
  if (m_sizes.size() > kMostTexts) m_sizes.clear();
  std::vector<Kept>& kept = m_sizes[opt.text];
  for (const Kept& k : kept) {
    if (k.rect == key.rect && k.features == key.features && k.alignment == key.alignment &&
        k.state == key.state && k.decorationSize == key.decorationSize &&
        k.decorationPosition == key.decorationPosition && k.elideMode == key.elideMode &&
        k.direction == key.direction && k.style == key.style && k.font == key.font) {
      return k.size;
    }
  }
  ++m_measured;
  key.size = QStyledItemDelegate::sizeHint(option, index);
  kept.push_back(key);
  return key.size;
}

ItemTextDelegate::ItemTextDelegate(QObject* parent, bool gridLines)
    : KeptSizeDelegate(parent), m_gridLines(gridLines) {}

const QStaticText& ItemTextDelegate::laidOut(const QString& text, const QFont& font) const {
  if (font != m_font || m_texts.size() > kMostTexts) {
    m_texts.clear();
    m_font = font;
  }
  auto it = m_texts.find(text);
  if (it == m_texts.end()) {
    QStaticText laid(text);
    laid.setTextFormat(Qt::PlainText);
    laid.prepare(QTransform(), font);
    it = m_texts.insert(text, laid);
  }
  return *it;
}

QSize ItemTextDelegate::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  QSize size = KeptSizeDelegate::sizeHint(option, index);
  // In a list, an item asks for no width of its own: it takes the view's width and a long
  // text is elided to it, instead of widening the rows past the view where they are cut.
  if (qobject_cast<const QListView*>(option.widget) != nullptr) size.setWidth(1);
  return size;
}

void ItemTextDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  QStyleOptionViewItem opt = option;
  initStyleOption(&opt, index);
  const QWidget* widget = opt.widget;
  QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
  const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, widget) + 1;
  const QRect textRect = opt.rect.adjusted(margin, 0, -margin, 0);
  const QStaticText& text = laidOut(opt.text, opt.font);
  if (m_gridLines) {
    const QColor grid = QColor::fromRgba(
        static_cast<QRgb>(style->styleHint(QStyle::SH_Table_GridLineColor, &opt, widget)));
    painter->fillRect(QRect(opt.rect.right(), opt.rect.top(), 1, opt.rect.height()), grid);
    painter->fillRect(QRect(opt.rect.left(), opt.rect.bottom(), opt.rect.width(), 1), grid);
  }
  if (!opt.icon.isNull() || text.size().width() > textRect.width()) {
    // The style elides the text to the cell, as the view's elide mode says.
    QStyledItemDelegate::paint(painter, option, index);
    return;
  }
  // The selection, a cell's own background and the focus frame as the style draws them; a plain
  // item has none of them (the view has drawn the row's background).
  if ((opt.state & (QStyle::State_Selected | QStyle::State_HasFocus)) ||
      opt.backgroundBrush.style() != Qt::NoBrush) {
    opt.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, widget);
  }
  const QPalette::ColorGroup group = !(opt.state & QStyle::State_Enabled)  ? QPalette::Disabled
                                     : !(opt.state & QStyle::State_Active) ? QPalette::Inactive
                                                                           : QPalette::Normal;
  const QPalette::ColorRole role =
      (opt.state & QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
  const QSizeF size = text.size();
  const QRect placed =
      QStyle::alignedRect(opt.direction, opt.displayAlignment, size.toSize(), textRect);
  painter->save();
  painter->setPen(opt.palette.color(group, role));
  painter->setFont(opt.font);
  painter->drawStaticText(placed.topLeft(), text);
  painter->restore();
}

}  // namespace tnw::tradeoffs
