#pragma once

// Qt
#include <QFont>
#include <QHash>
#include <QPixmap>
#include <QSize>
#include <QStaticText>
#include <QStyledItemDelegate>

// Std
#include <vector>

namespace tnw::tradeoffs {

// Asks the style for an item's size as QStyledItemDelegate does, but keeps each answer: the
// views ask again for the same items whenever they are shown or laid out (a results tab shown
// again measured every word-wrapped line of its list anew). An answer is reused only for an
// item of the same text, font, size and options in a view of the same style; items with an
// icon, a check box or a size hint of their own are measured each time.
class KeptSizeDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // A delegate for the given view (its parent).
  explicit KeptSizeDelegate(QObject* parent = nullptr);

  // The style's size of the item.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  // How many times the style was asked (for tests).
  int measured() const { return m_measured; }

 protected:
  // What the style measures and draws an item from, besides its text: items of the same text and
  // look measure and paint alike.
  struct ItemLook {
    QFont font;
    QSize size;
    int features = 0;
    int alignment = 0;
    int state = 0;
    QSize decorationSize;
    int decorationPosition = 0;
    int elideMode = 0;
    int direction = 0;
    qint64 palette = 0;
    QRgb base = 0;
    const void* style = nullptr;

    // The look of the item `opt` describes (its size is its rectangle's).
    static ItemLook of(const QStyleOptionViewItem& opt);
    bool operator==(const ItemLook& other) const;
  };

 private:
  // One answer and the look it was given for (the text is the cache's key).
  struct Kept {
    ItemLook look;
    QSize size;
  };

  mutable QHash<QString, std::vector<Kept>> m_sizes;
  mutable int m_measured = 0;
};

// Paints the items of the trade-off dialog's lists and grids as the style does, but keeps each
// text laid out once (a QStaticText) instead of laying it out again at every paint: with 31
// attributes the lists and grids are repainted on most user actions, and the layout of their
// texts was most of that time. A text the style must elide or wrap is left to the style. A plain
// item (not selected, without focus, on the view's plain background) is drawn once into a kept
// image, which later paints copy: a tab shown again copies its grid's cells instead of drawing
// their glyphs anew. On a widget's backing store the item is drawn in place and its pixels are
// kept from there. For a grid the delegate draws the grid lines too, as filled edges of each
// cell, which costs less than the view's own lines (the grid turns those off).
class ItemTextDelegate : public KeptSizeDelegate {
  Q_OBJECT

 public:
  // A delegate for the given view (its parent); with gridLines, each cell gets its right and
  // bottom grid line.
  explicit ItemTextDelegate(QObject* parent = nullptr, bool gridLines = false);

  // The style's size of the item (kept, see KeptSizeDelegate); in a list that does not wrap its
  // texts, no width of its own.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  // Paints the item's panel with the style and its text from the cache.
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

  // How many times an item was drawn into a kept image (for tests).
  int imagesPainted() const { return m_imagesPainted; }
  // How many times an item was drawn, into a kept image or on the view (for tests).
  int itemsDrawn() const { return m_itemsDrawn; }
  // How many kept images were drawn apart from the view, rather than kept from its pixels (for
  // tests).
  int imagesDrawnApart() const { return m_imagesDrawnApart; }

 private:
  // One kept image and the look and resolution it was drawn for (the text is the cache's key).
  struct KeptImage {
    ItemLook look;
    qreal pixelRatio = 1.0;
    QPixmap image;
  };

  const QStaticText& laidOut(const QString& text, const QFont& font) const;
  // Draws the right and bottom grid lines of a cell at `rect`.
  void drawGridLines(QPainter* painter, const QStyleOptionViewItem& opt, const QRect& rect) const;
  // Paints the item from a kept image of its drawing; false when the item cannot be kept
  // (selected, focused, with a background or an icon of its own, or a painter that scales).
  bool paintKept(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                 QStyleOptionViewItem& opt, const QStaticText* text) const;
  // Draws the item: its grid lines, then its text from the kept layout `text`, or by the style
  // (which wraps or elides it) when there is none.
  void drawItem(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                QStyleOptionViewItem& opt, const QStaticText* text) const;

  mutable QHash<QString, QStaticText> m_texts;
  mutable QFont m_font;
  mutable QHash<QString, std::vector<KeptImage>> m_images;
  mutable int m_imagesPainted = 0;
  mutable int m_itemsDrawn = 0;
  mutable int m_imagesDrawnApart = 0;
  mutable int m_imageCount = 0;
  bool m_gridLines = false;
};

}  // namespace tnw::tradeoffs
