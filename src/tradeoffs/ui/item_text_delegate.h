#pragma once

// Qt
#include <QHash>
#include <QStaticText>
#include <QStyledItemDelegate>

namespace tnw::tradeoffs {

// Paints the items of the trade-off dialog's lists and grids as the style does, but keeps each
// text laid out once (a QStaticText) instead of laying it out again at every paint: with 31
// attributes the lists and grids are repainted on most user actions, and the layout of their
// texts was most of that time. A plain item (not selected, without focus) is not handed to the
// style at all; a text too long for its cell is left to the style, which elides it. For a grid
// the delegate draws the grid lines too, as filled edges of each cell, which costs less than
// the view's own lines (the grid turns those off).
class ItemTextDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // A delegate for the given view (its parent); with gridLines, each cell gets its right and
  // bottom grid line.
  explicit ItemTextDelegate(QObject* parent = nullptr, bool gridLines = false);

  // The style's size of the item; in a list, no width of its own.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  // Paints the item's panel with the style and its text from the cache.
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  const QStaticText& laidOut(const QString& text, const QFont& font) const;

  mutable QHash<QString, QStaticText> m_texts;
  mutable QFont m_font;
  bool m_gridLines = false;
};

}  // namespace tnw::tradeoffs
