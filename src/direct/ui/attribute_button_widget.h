#pragma once

#include "common/ui/elided_text.h"
#include "common/ui/kept_text.h"

// Qt
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPoint>
#include <QPushButton>
#include <QSize>
#include <QString>

namespace tnw::direct {

// An attribute's button (cmdAttA, cmdAttB, cmdAttButtons, cmdAttBtn): a flat push button in the
// attribute's orientation colour that shows the attribute's name and, when draggable, starts a
// drag carrying its tag ("A3", "B3") under the private attribute MIME type. It paints itself: a
// rounded face with a thin grey frame (a heavy red one when marked, blue while it has the focus),
// and its caption laid out once and kept until the text, font, width or mark changes.
class AttributeButtonWidget : public QPushButton {
  Q_OBJECT

 public:
  // A button of the control array arrayName, named arrayName_index.
  AttributeButtonWidget(const QString& arrayName, int index, QWidget* parent = nullptr);

  // The control-array index of the button.
  int index() const { return m_index; }
  // Sets the tag the button carries ("A" or "B" followed by the attribute index).
  void setTag(const QString& tag);
  // The tag the button carries.
  QString tag() const { return m_tag; }
  // The attribute the button stands for (the number after the tag's first letter), -1 if none.
  int attribute() const;
  // Whether pressing and moving the mouse starts a drag.
  void setDraggable(bool draggable) { m_draggable = draggable; }
  // Sets the face colour (light red for benefit-, light blue for cost-oriented attributes).
  void setFaceColour(const QColor& colour);
  // The face colour.
  QColor faceColour() const { return m_face; }
  // Shows the button as the chosen one (a heavier frame), or not.
  void setMarked(bool marked);

  // Wide enough for a short name to read well.
  QSize sizeHint() const override;
  // Narrow enough that a long name never widens the list or box that holds the button.
  QSize minimumSizeHint() const override;
  // The caption as it is painted now: the whole name, or its start and an ellipsis.
  QString shownText() const;
  // How many times the caption was laid out (for tests).
  int captionLayouts() const { return m_caption.laidOut(); }

 protected:
  // Paints the face, the frame and the caption elided to the room inside the frame.
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  // Measures the button again after a change of font or style.
  void changeEvent(QEvent* event) override;
  // The whole face takes clicks, its rounded corners included.
  bool hitButton(const QPoint& pos) const override;

 private:
  // What the kept picture of the face and caption between the frame's sides was painted for.
  struct Inside {
    QString shown;
    int flags = 0;
    QFont font;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    QRgb face = 0;
    QRect room;
    QSize size;
    int ratio = 0;
    friend bool operator==(const Inside&, const Inside&) = default;
  };

  int borderWidth() const { return m_marked ? 3 : 1; }
  int leftPadding() const { return m_marked ? 22 : 8; }
  // The room inside the frame and the padding, in widget coordinates.
  QRect contentsRect(const QRect& rect) const;
  // The flags the caption is drawn with: centred, with its mnemonic underlined when the style
  // underlines shortcuts.
  int captionFlags() const;
  void paintCaption(QPainter& painter, const QRect& room) const;
  // Paints the face and caption between the frame's sides from a kept picture, painted again
  // when the caption, the face colour, the room or the scale changed.
  void paintInside(QPainter& painter, const QColor& face, const QRect& room, int ratio) const;

  int m_index = 0;
  QString m_tag;
  bool m_draggable = false;
  QColor m_face{255, 192, 192};
  bool m_marked = false;
  QPoint m_pressPos;
  bool m_pressed = false;
  // The caption elided to the room, and its layout.
  mutable ElidedText m_shown;
  mutable KeptText m_caption;
  mutable QImage m_inside;
  mutable Inside m_insideKey;
  mutable QString m_hintText;
  mutable QSize m_hint;
};

}  // namespace tnw::direct
