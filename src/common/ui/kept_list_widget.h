#pragma once

#include "common/ui/kept_look.h"

// Qt
#include <QListWidget>

namespace tnw {

// A list widget whose own paint, its frame around the viewport and the scroll bar, keeps its last
// looks (see KeptLook) and paints as QListWidget: a list shown again copies its frame's pixels
// instead of drawing them. Its items, in the viewport, and its scroll bar paint themselves.
class KeptListWidget : public KeptLooks<QListWidget> {
 public:
  using KeptLooks::KeptLooks;

 protected:
  bool event(QEvent* event) override;

 private:
  // Whether the paint draws the frame alone: with both scroll bars shown, the style may paint
  // the corner between them too.
  bool paintsFrameAlone() const;
};

}  // namespace tnw
