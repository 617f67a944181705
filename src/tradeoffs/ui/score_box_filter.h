#pragma once

// Qt
#include <QObject>

// Std
#include <array>
#include <functional>

class QKeyEvent;
class QLineEdit;

namespace tnw::tradeoffs {

class TradeOffsAPresenter;

// Hands the keys of the four score boxes to the presenter, as the boxes' KeyPress handler does:
// typed characters, Backspace and Enter are edited by the presenter's score entry rules, and a
// letter or digit held with Ctrl, Alt or Meta types nothing. Keys it does not know (arrows,
// Delete, Home, copy and paste) are left to the box, whose edited text the dialog hands on.
class ScoreBoxFilter : public QObject {
  Q_OBJECT

 public:
  // A filter over the boxes, in the order of the presenter's score boxes; afterEnter runs after
  // Enter was handed on (the dialog moves the focus where the page asks).
  ScoreBoxFilter(TradeOffsAPresenter& presenter, const std::array<QLineEdit*, 4>& boxes,
                 std::function<void()> afterEnter, QObject* parent = nullptr);

  // The key code the boxes' KeyPress handler receives for a key, or 0 when the box handles the
  // key alone.
  static int keyCodeOf(const QKeyEvent* event);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool filterKey(QObject* watched, QEvent* event);

  TradeOffsAPresenter& m_presenter;
  std::array<QLineEdit*, 4> m_boxes;
  std::function<void()> m_afterEnter;
};

}  // namespace tnw::tradeoffs
