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
class KeptLineEdit : public KeptLooks<QLineEdit> {
 public:
  using KeptLooks::KeptLooks;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // Whether the text is drawn where its inputs alone place it.
  bool placesTextPlainly() const;
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
