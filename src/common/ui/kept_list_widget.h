#pragma once

#include "common/ui/kept_look.h"

// Qt
#include <QListWidget>
#include <QScrollBar>

namespace tnw {

// A scroll bar that paints as QScrollBar and keeps its last looks (see KeptLook) while the mouse
// is neither over it nor pressed: then no part of it is hovered or pressed, and its paint draws
// from its option alone (range, position, steps, orientation, state).
class KeptScrollBar : public KeptLooks<QScrollBar> {
 public:
  using KeptLooks::KeptLooks;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A list widget whose own paint, its frame around the viewport and the scroll bar, keeps its last
// looks (see KeptLook) and paints as QListWidget, and whose vertical scroll bar is a
// KeptScrollBar: a list shown again copies their pixels instead of drawing them. Its items, in
// the viewport, paint themselves.
class KeptListWidget : public KeptLooks<QListWidget> {
 public:
  // An empty list.
  explicit KeptListWidget(QWidget* parent = nullptr);

 protected:
  bool event(QEvent* event) override;

 private:
  // Whether the paint draws the frame alone: with both scroll bars shown, the style may paint
  // the corner between them too.
  bool paintsFrameAlone() const;
};

}  // namespace tnw
