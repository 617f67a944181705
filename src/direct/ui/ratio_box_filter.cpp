#include "direct/ui/ratio_box_filter.h"

#include "common/ui/number_box_keys.h"
#include "wizard/ui/dialog_window.h"
#include "direct/core/direct_a_presenter.h"

// Qt
#include <QFocusEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QMouseEvent>

namespace tnw::direct {
namespace {

constexpr int kEnter = 13;
constexpr int kBackspace = 8;
constexpr int kCtrlV = 22;
constexpr int kInsert = 45;

wizard::TextBoxState stateOf(const QLineEdit* edit) {
  wizard::TextBoxState state;
  state.text = edit->text().toStdString();
  if (edit->hasSelectedText()) {
    state.selStart = edit->selectionStart();
    state.selLength = static_cast<int>(edit->selectedText().size());
  } else {
    state.selStart = edit->cursorPosition();
  }
  state.clampSelection();
  return state;
}

}  // namespace

RatioBoxFilter::RatioBoxFilter(DirectAPresenter& presenter, QLineEdit* lower, QLineEdit* upper,
                               std::function<void()> afterAction, QObject* parent)
    : QObject(parent),
      m_presenter(presenter),
      m_lower(lower),
      m_upper(upper),
      m_afterAction(std::move(afterAction)) {
  for (QLineEdit* edit : {lower, upper}) {
    edit->installEventFilter(this);
    edit->setAttribute(Qt::WA_InputMethodEnabled, false);
  }
  connect(lower, &QLineEdit::textEdited, this, guarded(this, [this](const QString& text) {
            handleEdited(JudgmentPage::Box::Lower, text);
          }));
  connect(upper, &QLineEdit::textEdited, this, guarded(this, [this](const QString& text) {
            handleEdited(JudgmentPage::Box::Upper, text);
          }));
}

int RatioBoxFilter::keyAsciiOf(const QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter) return kEnter;
  if (key == Qt::Key_Backspace) return kBackspace;
  if (event->modifiers() & Qt::ControlModifier) {
    return key == Qt::Key_V ? kCtrlV : -1;
  }
  const QString text = event->text();
  if (text.size() != 1 || event->modifiers() & (Qt::AltModifier | Qt::MetaModifier)) return -1;
  const char16_t c = text.front().unicode();
  if (c < 32 || c == 127) return -1;
  // Characters beyond Latin-1 reach the filter as a character it refuses.
  return c < 256 ? static_cast<int>(c) : static_cast<int>('?');
}

void RatioBoxFilter::showBoxState(QLineEdit* edit, const wizard::TextBoxState& state) {
  const QString text = QString::fromStdString(state.text);
  if (edit->text() != text) edit->setText(text);
  if (state.selLength > 0) {
    edit->setSelection(state.selStart, state.selLength);
  } else {
    edit->setCursorPosition(state.selStart);
  }
}

bool RatioBoxFilter::handleKey(JudgmentPage::Box box, QLineEdit* edit, QKeyEvent* event) {
  const bool shift = event->modifiers() & Qt::ShiftModifier;
  if (event->key() == Qt::Key_Insert && m_presenter.txtWR_KeyDown(box, kInsert, shift)) {
    return true;
  }
  const int keyAscii = keyAsciiOf(event);
  if (keyAscii < 0) {
    // A letter or digit held with Ctrl, Alt or Meta types nothing; pasting by any other key of
    // the platform is refused as well.
    return isDroppedModifiedKey(event) || event->matches(QKeySequence::Paste);
  }
  // The box shows the presenter's text (every edit goes through it), so only the caret and the
  // selection go over; a box whose length differs hands its whole text over.
  const wizard::TextBoxState& shown = m_presenter.judgment().box(box);
  if (static_cast<qsizetype>(shown.text.size()) == edit->text().size()) {
    const int start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
    m_presenter.txtWR_KeyPress(box, start, edit->selectionLength(), keyAscii);
  } else {
    m_presenter.txtWR_KeyPress(box, stateOf(edit), keyAscii);
  }
  showBoxState(edit, m_presenter.judgment().box(box));
  if (m_afterAction) m_afterAction();
  return true;
}

void RatioBoxFilter::handleEdited(JudgmentPage::Box box, const QString& text) {
  if (text.toStdString() == m_presenter.judgment().box(box).text) return;
  QLineEdit* edit = box == JudgmentPage::Box::Lower ? m_lower : m_upper;
  const int caret = edit->cursorPosition();
  m_presenter.txtWR_SetText(box, text.toStdString());
  edit->setCursorPosition(caret);
}

bool RatioBoxFilter::eventFilter(QObject* watched, QEvent* event) {
  // A key press or leaving a box runs the presenter; if it fails, the event goes no further.
  bool filtered = true;
  runGuarded(this, [&] { filtered = filterBoxEvent(watched, event); });
  return filtered;
}

bool RatioBoxFilter::filterBoxEvent(QObject* watched, QEvent* event) {
  QLineEdit* edit = qobject_cast<QLineEdit*>(watched);
  if (edit != m_lower && edit != m_upper) return QObject::eventFilter(watched, event);
  const auto box = edit == m_lower ? JudgmentPage::Box::Lower : JudgmentPage::Box::Upper;
  switch (event->type()) {
    case QEvent::KeyPress:
      return handleKey(box, edit, static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
      // The middle button pastes the selection on some desktops.
      return static_cast<QMouseEvent*>(event)->button() == Qt::MiddleButton;
    case QEvent::FocusOut: {
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      // A message box or menu taking the focus for a moment is not leaving the box.
      if (m_restoringFocus || reason == Qt::ActiveWindowFocusReason ||
          reason == Qt::PopupFocusReason || !edit->isVisible()) {
        return false;
      }
      m_presenter.txtWR_LostFocus(box);
      // The box deselects its text when it has handled losing the focus; giving the focus
      // back (with the text selected) waits until then.
      if (m_afterAction) {
        QMetaObject::invokeMethod(
            this, [this, after = m_afterAction] { runGuarded(this, after); }, Qt::QueuedConnection);
      }
      return false;
    }
    default:
      return false;
  }
}

}  // namespace tnw::direct
