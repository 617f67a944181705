#pragma once

#include "common/ui/kept_look.h"
#include "common/ui/kept_text.h"

// Qt
#include <QLabel>

namespace tnw {

// A label that keeps the layout of its text between paints. QLabel shapes a plain text anew at
// every paint; this one draws it from a KeptText, with the same pixels, whenever its text is
// plain, unframed and drawn by a style that draws item texts as they come (see KeptText), and
// paints as QLabel does otherwise (rich text, mnemonics, pictures, frames, style sheets).
class KeptTextLabel : public KeptLooks<QLabel> {
  Q_OBJECT

 public:
  // A label showing text.
  explicit KeptTextLabel(const QString& text, QWidget* parent = nullptr);
  // A label without text yet.
  explicit KeptTextLabel(QWidget* parent = nullptr);

  // Whether the label paints its text from the kept layout now.
  bool paintsKept() const;
  // How many times the kept text was laid out (for tests).
  int laidOut() const { return m_kept.laidOut(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // The flags QLabel draws its text with.
  int textFlags() const;

  KeptText m_kept;
};

}  // namespace tnw
