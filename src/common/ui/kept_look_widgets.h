#pragma once

#include "common/ui/kept_look.h"

// Qt
#include <QFrame>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

// Std
#include <memory>

namespace tnw {

// A push button that paints as QPushButton and keeps its last looks (see KeptLook): a page shown
// again, or a button pressed and released again, copies its pixels instead of drawing them.
class KeptPushButton : public KeptLooks<QPushButton> {
 public:
  using KeptLooks::KeptLooks;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A radio button that paints as QRadioButton and keeps its last looks (see KeptLook).
class KeptRadioButton : public KeptLooks<QRadioButton> {
 public:
  using KeptLooks::KeptLooks;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A group box that paints its frame and title as QGroupBox and keeps its last looks (see
// KeptLook); its children paint themselves.
class KeptGroupBox : public KeptLooks<QGroupBox> {
 public:
  using KeptLooks::KeptLooks;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A frame (a panel, a separating line) that paints as QFrame and keeps its last looks (see
// KeptLook); its children paint themselves.
class KeptFrame : public KeptLooks<QFrame> {
 public:
  using KeptLooks::KeptLooks;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A line edit that paints as QLineEdit and keeps its last looks (see KeptLook) while it shows
// no cursor, no selection and no buttons inside it, and its text fits with room to spare: then
// where its text is drawn follows from its text, alignment and room alone (a longer text is
// scrolled to its cursor, from where it was scrolled before, and is painted by QLineEdit).
// Any other paint is QLineEdit's, with its panel drawn through KeptPanelStyle: the panel's look
// is kept apart from the text, so that a new text is drawn over a copy of the panel.
class KeptLineEdit : public KeptLooks<QLineEdit> {
 public:
  // An empty line edit.
  explicit KeptLineEdit(QWidget* parent = nullptr);
  ~KeptLineEdit() override;
  KeptLineEdit(const KeptLineEdit&) = delete;
  KeptLineEdit& operator=(const KeptLineEdit&) = delete;

  // The kept looks of the panel alone (for tests).
  const KeptLook& panelLook() const { return m_panel; }
  // Paints the panel the style draws for `option` with `painter` while QLineEdit paints this
  // line edit: a kept look of the panel, or stockPanel(), whose result is kept.
  template <typename StockPanel>
  void paintPanel(const QStyleOption& option, QPainter& painter, StockPanel&& stockPanel) const {
    if (!panelTarget(option, painter)) {
      stockPanel();
      return;
    }
    QPoint offset;
    QPaintDevice* device = redirected(&offset);
    m_panel.paint({*const_cast<KeptLineEdit*>(this), *m_painting, device, offset,
                   sharedPainter() != nullptr, &painter},
                  panelInputs(option), std::forward<StockPanel>(stockPanel));
  }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // Whether the text is drawn where its inputs alone place it.
  bool placesTextPlainly() const;
  // Whether the panel of `option` is drawn over this whole line edit by the painter its paint
  // opened, untransformed and unclipped.
  bool panelTarget(const QStyleOption& option, const QPainter& painter) const;
  // The inputs of the panel's paint.
  KeptLookInputs panelInputs(const QStyleOption& option) const;
  // QLineEdit's paint, its panel drawn through paintPanel.
  void stockPaint(QPaintEvent* event);

  mutable KeptLook m_panel;
  // The paint event QLineEdit is handling, or null.
  QPaintEvent* m_painting = nullptr;
  // The inputs of the last paint QLineEdit ran for a plainly placed text (none after any other
  // paint of it): the place of the text it keeps for clicks is theirs.
  KeptLookInputs m_scrolledFor;
  // The style the line edits share while one of them holds it, or null.
  std::shared_ptr<QStyle> m_panelStyle;
};

// A tab bar that paints as QTabBar and keeps its last looks (see KeptLook) while it cannot be
// dragged and shows no scroll or tab buttons: then its paint draws from its tabs' options alone.
class KeptTabBar : public KeptLooks<QTabBar> {
 public:
  using KeptLooks::KeptLooks;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // The inputs of the paint, or nothing where it draws from more than its tabs' options.
  std::optional<KeptLookInputs> inputs() const;
};

// A tab widget whose tab bar is a KeptTabBar (named and set up as QTabWidget names and sets up
// its own bar), and that paints its pane's frame as QTabWidget and keeps its last looks (see
// KeptLook) outside document mode, where the pane is drawn from its frame option alone.
class KeptTabWidget : public KeptLooks<QTabWidget> {
 public:
  // A tab widget without pages.
  explicit KeptTabWidget(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tnw
