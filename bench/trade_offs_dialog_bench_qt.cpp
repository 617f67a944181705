// frmTradeOffsA's reaction to every user action at 31 attributes, with the real widgets on the
// offscreen platform. Each iteration is one action: the event a user's mouse or keyboard sends,
// its handling by the presenter, the re-rendering of the controls and the repaint that follows.
// Besides Google Benchmark's mean, each benchmark reports the median, the 90th percentile and
// the maximum of the single actions' wall time (p50_us, p90_us, max_us), the median and 90th
// percentile of their process CPU time (cpu_p50_us, cpu_p90_us), and the paint events per
// action (paints) with the widgets that got them in its label.

#include "action_times.h"
#include "common/core/recording_ui_services.h"
#include "graphs/ui/chart_widget.h"
#include "paint_counter_qt.h"
#include "tradeoffs/core/tradeoffs_a_events.h"
#include "tradeoffs/ui/tradeoffs_a_dialog.h"
#include "wizard/core/wizard_context.h"

// Qt
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>
#include <QToolBar>

// Google Benchmark
#include <benchmark/benchmark.h>

// Std
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tnw {
namespace {

class NullEvents : public tradeoffs::TradeOffsAEvents {
 public:
  void ExportTradeOffsW(const std::string&, std::vector<double>&, std::vector<double>&,
                        std::vector<double>&) override {}
  void SendMasseges(const std::string&) override {}
  void ShowTNWSelMethod() override {}
  void UnloadTNWizard(std::int16_t, bool) override {}
};

// A model of 31 benefit attributes scored 0..100 with linear value functions.
AttributeModel model31() {
  AttributeModel m;
  m.NumAtt = kMaxAttributes;
  for (std::size_t a = 0; a < static_cast<std::size_t>(kMaxAttributes); ++a) {
    m.AttName[a] = "Attribute " + std::to_string(a + 1);
    m.AttOrientation[a] = "0";
    m.AttScoreHigh[a] = 100.0;
    m.NumPoints[a] = 2;
    m.PointScore[a][0] = 0.0;
    m.PointScore[a][1] = 100.0;
    m.PointValue[a][0] = 0.0;
    m.PointValue[a][1] = 1.0;
  }
  return m;
}

// One shown dialog over the 31-attribute model, on its judgment page.
struct Fixture {
  Fixture() {
    context.model = model31();
    dialog = std::make_unique<tradeoffs::TradeOffsADialog>(context, ui, events);
    dialog->resize(900, 620);
    dialog->show();
    QApplication::processEvents();
  }
  template <typename T = QWidget>
  T* child(const QString& name) const {
    return dialog->findChild<T*>(name);
  }
  QPushButton* button(const char* name) const {
    return child<QPushButton>(QString::fromLatin1(name));
  }
  // The 930 judgments of the automatic cycle, each through the Enter button.
  void makeAllJudgments() const {
    QPushButton* enter = button("cmdTradeOffEnter");
    while (enter->isEnabled()) enter->click();
    QApplication::processEvents();
  }
  // All judgments, then Next: the results page of a full run.
  void showResults() const {
    makeAllJudgments();
    button("cmdNext")->click();
    QApplication::processEvents();
  }

  WizardContext context;
  RecordingUiServices ui;
  NullEvents events;
  std::unique_ptr<tradeoffs::TradeOffsADialog> dialog;
};

void click(QWidget* w, QPoint at = {}) {
  QTest::mouseClick(w, Qt::LeftButton, {}, at.isNull() ? w->rect().center() : at);
}

void clickToolButton(QToolBar* bar, const char* action) {
  click(bar->widgetForAction(bar->findChild<QAction*>(QString::fromLatin1(action))));
}

void clickTab(QTabBar* tabs, int tab) { click(tabs, tabs->tabRect(tab).center()); }

void clickItem(QListWidget* list, int row) {
  click(list->viewport(), list->visualItemRect(list->item(row)).center());
}

void sendMouse(QWidget* w, QEvent::Type type, QPointF pos, Qt::MouseButtons buttons) {
  QMouseEvent e(type, pos, w->mapToGlobal(pos), Qt::LeftButton, buttons, Qt::NoModifier);
  QApplication::sendEvent(w, &e);
}

// One user action: `prepare` runs once on a fresh dialog, `between` untimed before each
// action (to undo the previous one), `act` is the timed action of iteration i.
struct UserAction {
  std::function<void(Fixture&)> prepare;
  std::function<void(Fixture&, int)> between;
  std::function<void(Fixture&, int)> act;
};

// The timed part of an action.
[[gnu::noinline]] void performAction(const UserAction& action, Fixture& f, int i) {
  action.act(f, i);
  // The repaint of what the action changed belongs to it.
  QApplication::processEvents();
}

void runAction(benchmark::State& state, const UserAction& action) {
  Fixture f;
  if (action.prepare) action.prepare(f);
  ActionTimes times;
  PaintCounter paints;
  int i = 0;
  for (auto _ : state) {
    if (action.between) {
      state.PauseTiming();
      action.between(f, i);
      QApplication::processEvents();
      state.ResumeTiming();
    }
    times.start();
    paints.setCounting(true);
    performAction(action, f, i);
    paints.setCounting(false);
    times.stop();
    ++i;
  }
  times.report(state);
  paints.report(state, state.iterations());
}

// Each tab of a tab strip, coming from the other one.
template <typename Register>
void registerTabs(const Register& reg, const char* strip, std::function<void(Fixture&)> prepare,
                  const std::array<const char*, 2>& tabs) {
  for (int t = 0; t < 2; ++t) {
    const auto bar = [strip](Fixture& f) { return f.child<QTabBar>(QString::fromLatin1(strip)); };
    reg((std::string("Tab/") + strip + "/" + tabs[static_cast<std::size_t>(t)]).c_str(),
        {prepare, [bar, t](Fixture& f, int) { clickTab(bar(f), 1 - t); },
         [bar, t](Fixture& f, int) { clickTab(bar(f), t); }});
  }
}

void registerJudgmentPage() {
  const auto reg = [](const char* name, UserAction a) {
    return benchmark::RegisterBenchmark(name, [a](benchmark::State& s) { runAction(s, a); })
        ->Unit(benchmark::kMicrosecond);
  };
  for (const char* point : {"shpPCA", "shpPCB"}) {
    // One mouse move of a drag, back and forth by a few pixels.
    reg((std::string("DragStep/") + point).c_str(),
        {[point](Fixture& f) {
           auto* p = f.child(QString::fromLatin1(point));
           sendMouse(p, QEvent::MouseButtonPress, QRectF(p->rect()).center(), Qt::LeftButton);
         },
         {},
         [point](Fixture& f, int i) {
           auto* p = f.child(QString::fromLatin1(point));
           const QPointF to = QRectF(p->rect()).center() + QPointF(i % 2 == 0 ? 3.0 : -3.0, 0.0);
           sendMouse(p, QEvent::MouseMove, to, Qt::LeftButton);
         }});
  }
  const auto box = [](Fixture& f) {
    return f.child<QLineEdit>(QStringLiteral("txtTradeOffAFirstScore"));
  };
  // A digit, then backspace, so the text stays short.
  reg("ScoreBoxKey", {[box](Fixture& f) { box(f)->setFocus(); },
                      {},
                      [box](Fixture& f, int i) {
                        QTest::keyClick(box(f), i % 2 == 0 ? Qt::Key_5 : Qt::Key_Backspace);
                      }});
  // Enter in a box places A and B and hands the focus to the Enter button; it comes back.
  reg("ScoreBoxEnter", {{},
                        [box](Fixture& f, int) { box(f)->setFocus(); },
                        [box](Fixture& f, int) { QTest::keyClick(box(f), Qt::Key_Return); }});
  // Clear All starts again before the finished message would come.
  reg("EnterButton", {{},
                      [](Fixture& f, int) {
                        if (!f.button("cmdTradeOffEnter")->isEnabled())
                          f.button("cmdTradeOffClearAll")->click();
                      },
                      [](Fixture& f, int) { click(f.button("cmdTradeOffEnter")); }});
  reg("ToolbarStep", {{}, {}, [](Fixture& f, int i) {
                        clickToolButton(f.child<QToolBar>(QStringLiteral("tbScoreChanger_0")),
                                        i % 2 == 0 ? "Up" : "Down");
                      }});
  reg("VerbalOption",
      {[](Fixture& f) { clickTab(f.child<QTabBar>(QStringLiteral("tsComparisonApproaches")), 1); },
       {},
       [](Fixture& f, int i) {
         click(f.child(QStringLiteral("optPCVerbal_%1").arg(i % 7)), QPoint(8, 8));
       }});
  for (const char* list : {"lstTradeOffFirstC", "lstTradeOffSecondC"}) {
    // Manual mode; the list alternates between two attributes the other list does not hold.
    reg((std::string("ListChoice/") + list).c_str(),
        {[](Fixture& f) { click(f.child(QStringLiteral("optPCManual")), QPoint(8, 8)); },
         {},
         [list](Fixture& f, int i) {
           clickItem(f.child<QListWidget>(QString::fromLatin1(list)), 2 + i % 2);
         }});
  }
  const char* modes[2] = {"optPCAutomatic", "optPCManual"};
  for (int m = 0; m < 2; ++m) {
    const char* mode = modes[m];
    const char* other = modes[1 - m];
    reg((std::string("Mode/") + mode).c_str(),
        {{},
         [other](Fixture& f, int) { click(f.child(QString::fromLatin1(other)), QPoint(8, 8)); },
         [mode](Fixture& f, int) { click(f.child(QString::fromLatin1(mode)), QPoint(8, 8)); }});
  }
  registerTabs(reg, "tsComparisonApproaches", {}, {"Numerical", "Verbal"});
  // A judgment is recorded first, so that Clear All has a count to restart.
  reg("ClearAll", {{},
                   [](Fixture& f, int) { f.button("cmdTradeOffEnter")->click(); },
                   [](Fixture& f, int) { click(f.button("cmdTradeOffClearAll")); }});
}

void registerResultsPage() {
  const auto reg = [](const char* name, UserAction a) {
    return benchmark::RegisterBenchmark(name, [a](benchmark::State& s) { runAction(s, a); })
        ->Unit(benchmark::kMicrosecond);
  };
  const auto results = [](Fixture& f) { f.showResults(); };
  registerTabs(reg, "tsTabsW", results, {"WeightEstimates", "RegressionStatus"});
  // Each key of the chart toolbar, coming from another chart.
  const char* keys[3] = {"WeightBars", "HLCa", "HLCb"};
  for (int k = 0; k < 3; ++k) {
    const char* key = keys[k];
    const char* from = keys[(k + 1) % 3];
    const auto bar = [](Fixture& f) { return f.child<QToolBar>(QStringLiteral("tbWeightCharts")); };
    reg((std::string("ChartSwitch/") + key).c_str(),
        {results, [bar, from](Fixture& f, int) { clickToolButton(bar(f), from); },
         [bar, key](Fixture& f, int) { clickToolButton(bar(f), key); }});
  }
  // Next runs the regression over the 930 judgments; Back discards them. Each is timed after
  // the other page was filled again, so few iterations are run.
  reg("PageChange/Next", {{},
                          [](Fixture& f, int i) {
                            if (i > 0) click(f.button("cmdBack"));
                            f.makeAllJudgments();
                          },
                          [](Fixture& f, int) { click(f.button("cmdNext")); }})
      ->Iterations(5);
  reg("PageChange/Back", {{},
                          [](Fixture& f, int) { f.showResults(); },
                          [](Fixture& f, int) { click(f.button("cmdBack")); }})
      ->Iterations(5);
}

QtMessageHandler previousHandler = nullptr;

// The offscreen platform warns on every shown window that it cannot pass size hints on.
void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains(QLatin1String("propagateSizeHints"))) return;
  if (previousHandler != nullptr) previousHandler(type, context, message);
}

}  // namespace
}  // namespace tnw

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  tnw::previousHandler = qInstallMessageHandler(tnw::quietHandler);
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  tnw::registerJudgmentPage();
  tnw::registerResultsPage();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
