#pragma once

// Qt
#include <QHash>
#include <QStaticText>
#include <QStyledItemDelegate>

namespace tnw {

// Paints the items of the trade-off dialog's lists and grids as the style does, but keeps each
// text laid out once (a QStaticText) instead of laying it out again at every paint: with 31
// attributes the lists and grids are repainted on most user actions, and the layout of their
// texts was most of that time. A text too long for its cell is left to the style, which elides
// it.
class ItemTextDelegateQt : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // A delegate for the given view (its parent).
  explicit ItemTextDelegateQt(QObject* parent = nullptr);

  // Paints the item's panel with the style and its text from the cache.
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  const QStaticText& laidOut(const QString& text, const QFont& font) const;

  mutable QHash<QString, QStaticText> m_texts;
  mutable QFont m_font;
};

}  // namespace tnw
