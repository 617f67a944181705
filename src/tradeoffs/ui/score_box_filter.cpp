#include "tradeoffs/ui/score_box_filter.h"

#include "common/ui/number_box_keys.h"
#include "wizard/ui/dialog_window.h"
#include "tradeoffs/core/score_entry.h"
#include "tradeoffs/core/tradeoffs_a_presenter.h"

// Qt
#include <QKeyEvent>
#include <QLineEdit>

// Std
#include <algorithm>
#include <utility>

namespace tnw::tradeoffs {

ScoreBoxFilter::ScoreBoxFilter(TradeOffsAPresenter& presenter,
                               const std::array<QLineEdit*, 4>& boxes,
                               std::function<void()> afterEnter, QObject* parent)
    : QObject(parent), m_presenter(presenter), m_boxes(boxes), m_afterEnter(std::move(afterEnter)) {
  for (QLineEdit* box : m_boxes) box->installEventFilter(this);
}

int ScoreBoxFilter::keyCodeOf(const QKeyEvent* key) {
  if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) return ScoreEntry::kEnter;
  if (key->key() == Qt::Key_Backspace) return ScoreEntry::kBackspace;
  if (!key->text().isEmpty() && key->text().at(0).unicode() >= ScoreEntry::kBlank &&
      !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
    return key->text().at(0).unicode();
  }
  return 0;
}

bool ScoreBoxFilter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  // A key in a score box runs the presenter; if it fails, the key goes no further.
  bool filtered = true;
  runGuarded(this, [&] { filtered = filterKey(watched, event); });
  return filtered;
}

bool ScoreBoxFilter::filterKey(QObject* watched, QEvent* event) {
  const auto it = std::find(m_boxes.begin(), m_boxes.end(), watched);
  if (it == m_boxes.end()) return QObject::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  // A letter or digit held with Ctrl, Alt or Meta types nothing, as a plain letter.
  if (isDroppedModifiedKey(key)) return true;
  const int code = keyCodeOf(key);
  if (code == 0) return QObject::eventFilter(watched, event);
  const QLineEdit& edit = **it;
  const int selStart = edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
  const int selLength = edit.hasSelectedText() ? static_cast<int>(edit.selectedText().size()) : 0;
  m_presenter.scoreBoxKeyPress(static_cast<int>(it - m_boxes.begin()), code, selStart, selLength);
  if (code == ScoreEntry::kEnter && m_afterEnter) m_afterEnter();
  return true;
}

}  // namespace tnw::tradeoffs
