#pragma once

#include "common/ui/elided_text.h"
#include "common/ui/kept_look.h"
#include "common/ui/kept_text.h"

// Qt
#include <QLabel>

namespace tnw {

// A one-line label that shortens its text with an ellipsis when it is narrower than the text
// (an attribute's name can be long); the whole text stays available as text() and tooltip. The
// shortened text and its layout are kept between paints, made again when the text, the font or
// the width changes.
class ElidedLabelWidget : public KeptLooks<QLabel> {
  Q_OBJECT

 public:
  // Creates the label with its text.
  explicit ElidedLabelWidget(const QString& text, QWidget* parent = nullptr);

  // Sets the text and its tooltip.
  void setFullText(const QString& text);
  // A line shown in the tooltip above the whole text (empty: the text alone).
  void setToolTipHeading(const QString& heading);
  // The text as it is painted now: the whole text, or its start and an ellipsis.
  QString shownText() const;

  // Small enough that a long name never widens the dialog.
  QSize minimumSizeHint() const override;
  // One line of the font, whatever the text: a new name asks the layout for nothing.
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void updateToolTip();

  QString m_heading;
  mutable ElidedText m_shortened;
  KeptText m_kept;
};

}  // namespace tnw
