#pragma once

// Counts the paint events the application delivers while it is installed, per widget, so that a
// dialog benchmark can report how many widgets each user action repaints and which ones.

// Qt
#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QString>
#include <QWidget>

// Google Benchmark
#include <benchmark/benchmark.h>

// Std
#include <functional>
#include <map>
#include <string>

namespace tnw {

class PaintCounter : public QObject {
 public:
  // Starts counting: an application-wide event filter sees every paint event.
  PaintCounter() { qApp->installEventFilter(this); }
  // Stops counting.
  ~PaintCounter() override { qApp->removeEventFilter(this); }
  PaintCounter(const PaintCounter&) = delete;
  PaintCounter& operator=(const PaintCounter&) = delete;

  // Counting is on only between the start and the end of a timed action.
  void setCounting(bool on) { m_counting = on; }

  // The paint events seen while counting, in all.
  long long total() const { return m_total; }

  // The counters `paints` (per action) and the label naming the widgets painted, each with its
  // paint events per action, the most painted first.
  void report(benchmark::State& state, long long actions) const {
    if (actions <= 0) return;
    const double per = 1.0 / static_cast<double>(actions);
    state.counters["paints"] = static_cast<double>(m_total) * per;
    std::multimap<long long, std::string, std::greater<>> byCount;
    for (const auto& [name, count] : m_byWidget) byCount.emplace(count, name);
    std::string label;
    for (const auto& [count, name] : byCount) {
      if (!label.empty()) label += ' ';
      label += name;
      const double each = static_cast<double>(count) * per;
      if (each != 1.0) label += '*' + QString::number(each, 'g', 3).toStdString();
    }
    state.SetLabel(label);
  }

 protected:
  // Counts and lets every event through.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (m_counting && event->type() == QEvent::Paint && watched->isWidgetType()) {
      ++m_total;
      ++m_byWidget[widgetName(static_cast<QWidget*>(watched))];
    }
    return false;
  }

 private:
  // The widget's objectName, or its parent's with its class for an unnamed part.
  static std::string widgetName(const QWidget* w) {
    if (!w->objectName().isEmpty()) return w->objectName().toStdString();
    std::string name = w->metaObject()->className();
    for (const QWidget* p = w->parentWidget(); p != nullptr; p = p->parentWidget()) {
      if (!p->objectName().isEmpty()) return p->objectName().toStdString() + '/' + name;
    }
    return name;
  }

  bool m_counting = false;
  long long m_total = 0;
  std::map<std::string, long long> m_byWidget;
};

}  // namespace tnw
