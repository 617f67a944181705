#pragma once

#include "direct/core/judgment_page.h"

// Qt
#include <QObject>

// Std
#include <functional>

class QKeyEvent;
class QLineEdit;

namespace tnw::direct {

class DirectAPresenter;

// Hands the keys and focus changes of the two ratio boxes (txtWRLower, txtWRUpper) to the
// presenter, as the boxes' KeyDown, KeyPress and LostFocus handlers do: typed characters,
// Backspace and Enter are edited by the presenter's key filter, pasting in any form is refused,
// and leaving a box runs its bound check. Keys the filter does not know (arrows, Delete, Home,
// copy) are left to the box, whose edited text is then handed on.
class RatioBoxFilter : public QObject {
  Q_OBJECT

 public:
  // A filter over the two boxes; afterAction runs after every operation it hands on.
  RatioBoxFilter(DirectAPresenter& presenter, QLineEdit* lower, QLineEdit* upper,
                 std::function<void()> afterAction, QObject* parent = nullptr);

  // While set, focus changes are the dialog's own (giving the focus back) and check nothing.
  void setRestoringFocus(bool restoring) { m_restoringFocus = restoring; }
  // Whether the dialog is giving the focus back.
  bool restoringFocus() const { return m_restoringFocus; }
  // The key code the boxes' KeyPress handler receives for a key, or -1 when the key raises no
  // KeyPress (arrows, Delete, function keys) and the box handles it alone.
  static int keyAsciiOf(const QKeyEvent* event);
  // Shows the presenter's text, caret and selection of a box in the widget.
  static void showBoxState(QLineEdit* edit, const wizard::TextBoxState& state);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool filterBoxEvent(QObject* watched, QEvent* event);
  bool handleKey(JudgmentPage::Box box, QLineEdit* edit, QKeyEvent* event);
  void handleEdited(JudgmentPage::Box box, const QString& text);

  DirectAPresenter& m_presenter;
  QLineEdit* m_lower;
  QLineEdit* m_upper;
  std::function<void()> m_afterAction;
  bool m_restoringFocus = false;
};

}  // namespace tnw::direct
