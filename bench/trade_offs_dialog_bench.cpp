// The trade-off dialog's user actions at 31 attributes, driven through the real widgets on the
// offscreen platform: each iteration is one user action, its handling by the presenter, the
// re-rendering of the controls and the repaint that follows.

#include "common/recording_ui_services.h"
#include "component/wizard_context.h"
#include "graphs/chart_widget.h"
#include "tradeoffs/trade_offs_a_dialog.h"
#include "tradeoffs/trade_offs_a_events.h"

// Qt
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QToolBar>

// Google Benchmark
#include <benchmark/benchmark.h>

// Std
#include <memory>
#include <string>

namespace tnw {
namespace {

// The widgets need an application; the offscreen platform unless one is chosen already.
QApplication& application() {
  static int argc = 1;
  static char name[] = "trade_offs_dialog_bench";
  static char* argv[] = {name, nullptr};
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication app(argc, argv);
  return app;
}

class NullEvents : public TradeOffsAEvents {
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

// One shown dialog over the 31-attribute model.
struct Fixture {
  Fixture() {
    application();
    context.model = model31();
    dialog = std::make_unique<TradeOffsADialog>(context, ui, events);
    dialog->resize(900, 620);
    dialog->show();
    QApplication::processEvents();
  }
  template <typename T>
  T* child(const char* name) const {
    return dialog->findChild<T*>(QString::fromLatin1(name));
  }

  WizardContext context;
  RecordingUiServices ui;
  NullEvents events;
  std::unique_ptr<TradeOffsADialog> dialog;
};

void sendMouse(QWidget* w, QEvent::Type type, QPointF pos, Qt::MouseButtons buttons) {
  QMouseEvent e(type, pos, w->mapToGlobal(pos), Qt::LeftButton, buttons, Qt::NoModifier);
  QApplication::sendEvent(w, &e);
}

void BM_DragStepOfPoint(benchmark::State& state) {
  Fixture f;
  auto* a = f.child<QWidget>("shpPCA");
  const QPointF grab = QRectF(a->rect()).center();
  sendMouse(a, QEvent::MouseButtonPress, grab, Qt::LeftButton);
  int step = 0;
  for (auto _ : state) {
    // Back and forth by a few pixels, each event relative to where the point now is.
    const QPointF to = grab + QPointF((step++ % 2) == 0 ? 3.0 : -3.0, 0.0);
    sendMouse(a, QEvent::MouseMove, to, Qt::LeftButton);
    QApplication::processEvents();
  }
  sendMouse(a, QEvent::MouseButtonRelease, grab, Qt::NoButton);
}
BENCHMARK(BM_DragStepOfPoint)->Unit(benchmark::kMicrosecond);

void BM_KeyInScoreBox(benchmark::State& state) {
  Fixture f;
  auto* box = f.child<QLineEdit>("txtTradeOffAFirstScore");
  box->setFocus();
  box->setText(QStringLiteral("12"));
  box->end(false);
  int i = 0;
  for (auto _ : state) {
    // A digit and then backspace, so the text stays short.
    QTest::keyClick(box, (i++ % 2) == 0 ? Qt::Key_5 : Qt::Key_Backspace);
    QApplication::processEvents();
  }
}
BENCHMARK(BM_KeyInScoreBox)->Unit(benchmark::kMicrosecond);

void BM_EnterTradeOff(benchmark::State& state) {
  Fixture f;
  auto* enter = f.child<QPushButton>("cmdTradeOffEnter");
  auto* clear = f.child<QPushButton>("cmdTradeOffClearAll");
  for (auto _ : state) {
    if (!enter->isEnabled()) {
      state.PauseTiming();
      clear->click();
      state.ResumeTiming();
    }
    QTest::mouseClick(enter, Qt::LeftButton);
    QApplication::processEvents();
  }
  state.counters["messages"] = static_cast<double>(f.ui.messages().size());
}
BENCHMARK(BM_EnterTradeOff)->Unit(benchmark::kMicrosecond);

void BM_ChartSwitch(benchmark::State& state) {
  Fixture f;
  // 930 judgments on the automatic cycle, then Next: the results page of a full run.
  auto* enter = f.child<QPushButton>("cmdTradeOffEnter");
  while (enter->isEnabled()) enter->click();
  f.child<QPushButton>("cmdNext")->click();
  QApplication::processEvents();
  auto* bar = f.child<QToolBar>("tbWeightCharts");
  QWidget* buttons[3];
  const char* keys[3] = {"WeightBars", "HLCa", "HLCb"};
  for (int k = 0; k < 3; ++k) {
    buttons[k] = bar->widgetForAction(bar->findChild<QAction*>(QString::fromLatin1(keys[k])));
  }
  auto* chart = f.child<ChartWidget>("picWeightGraph");
  const int paintsBefore = chart->paintCount();
  int i = 0;
  for (auto _ : state) {
    QTest::mouseClick(buttons[i++ % 3], Qt::LeftButton);
    QApplication::processEvents();
  }
  state.counters["paints"] = chart->paintCount() - paintsBefore;
}
BENCHMARK(BM_ChartSwitch)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tnw
