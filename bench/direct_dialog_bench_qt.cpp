// frmDirectA's reaction to the user at 31 attributes, with the real widgets on the offscreen
// platform: one step of a handle drag, one key typed into a ratio box (and taken back), Back from
// the judgment page to the reference page, and Next from there to the judgment page. Each
// benchmark reports the median, the 90th percentile and the maximum of the single actions' wall
// time (p50_us, p90_us, max_us), the median and 90th percentile of their process CPU time
// (cpu_p50_us, cpu_p90_us) and its paint events per action (paints) with the widgets that got
// them in its label. Under valgrind --tool=callgrind --instr-atstart=no only the actions are
// instrumented.

#include "action_times.h"
#include "common/core/recording_ui_services.h"
#include "direct/core/direct_a_events.h"
#include "direct/ui/attribute_drop_filter.h"
#include "direct/ui/cone_area_widget.h"
#include "direct/ui/direct_a_dialog.h"
#include "paint_counter_qt.h"
#include "wizard/core/wizard_context.h"

// Qt
#include <QApplication>
#include <QDropEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QRegularExpression>

// Google Benchmark
#include <benchmark/benchmark.h>

// Std
#include <memory>
#include <string>
#include <vector>

namespace tnw {
namespace {

using direct::AttributeDropFilter;
using direct::ConeAreaWidget;

// Events go nowhere: the benchmark measures the dialog.
class NoEvents : public direct::DirectAEvents {
 public:
  void ExportDirectAW(const std::string&, std::int16_t, std::vector<double>&, std::vector<double>&,
                      std::vector<double>&) override {}
  void SendMasseges(const std::string&) override {}
  void ShowTNWSelMethod() override {}
  void UnloadDirectA() override {}
  void UnloadTNWizard(std::int16_t, bool) override {}
};

void drop(QWidget* target, const QString& tag) {
  QMimeData mime;
  mime.setData(AttributeDropFilter::mimeType(), tag.toUtf8());
  const QPoint pos = target->rect().center();
  QDragEnterEvent enter(pos, Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(target, &enter);
  QDropEvent dropEvent(QPointF(pos), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(target, &dropEvent);
}

QWidget* child(const QWidget* root, const char* name, int index = -1) {
  const QString n = QString::fromUtf8(name);
  if (index >= 0) return root->findChild<QWidget*>(n + QLatin1Char('_') + QString::number(index));
  return root->findChild<QWidget*>(n);
}

void click(QWidget* w) { static_cast<QPushButton*>(w)->click(); }

// A shown dialog of 31 attributes on its judgment page: four groups, reference attribute 0.
struct JudgmentPageAt31 {
  JudgmentPageAt31() {
    context.model.NumAtt = 31;
    for (std::size_t i = 0; i < 31; ++i) {
      context.model.AttName[i] = "Attribute " + std::to_string(i + 1);
      context.model.AttOrientation[i] = i % 3 == 0 ? "1" : "0";
      context.model.AttScoreHigh[i] = 10.0;
    }
    dialog = std::make_unique<direct::DirectADialog>(context, ui, events);
    dialog->show();
    click(child(dialog.get(), "cmdAdd"));
    click(child(dialog.get(), "cmdAdd"));
    for (int j = 0; j < 31; ++j) {
      for (QWidget* box :
           dialog->findChildren<QWidget*>(QRegularExpression(QStringLiteral("^picOrder_\\d+$")))) {
        if (box->property("tag").toInt() == 1 + j % 4) drop(box, QStringLiteral("A%1").arg(j));
      }
    }
    click(child(dialog.get(), "cmdNext"));
    click(child(dialog.get(), "cmdAttButtons", 0));
    click(child(dialog.get(), "cmdNext"));
    QCoreApplication::processEvents();
  }

  WizardContext context;
  RecordingUiServices ui;
  NoEvents events;
  std::unique_ptr<direct::DirectADialog> dialog;
};

void BM_HandleDragStep(benchmark::State& state) {
  JudgmentPageAt31 page;
  auto* cone = page.dialog->findChild<ConeAreaWidget*>(QStringLiteral("picTradeOffsRange"));
  QFrame* handle = cone->handle(1);
  const QPoint start = handle->rect().center();
  QMouseEvent press(QEvent::MouseButtonPress, QPointF(start), QPointF(handle->mapToGlobal(start)),
                    Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(handle, &press);
  const QPoint a =
      cone->toPixels(QPointF(0.5 * cone->areaSide(), 0.6 * cone->areaSide())).toPoint();
  const QPoint b =
      cone->toPixels(QPointF(0.6 * cone->areaSide(), 0.5 * cone->areaSide())).toPoint();
  bool toA = true;
  PaintCounter paints;
  ActionTimes times;
  paints.setCounting(true);
  for (auto _ : state) {
    times.start();
    const QPoint target = handle->mapFrom(cone, toA ? a : b);
    QMouseEvent move(QEvent::MouseMove, QPointF(target), QPointF(handle->mapToGlobal(target)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(handle, &move);
    // The repaint of the cone and the boxes belongs to the step.
    QCoreApplication::processEvents();
    times.stop();
    toA = !toA;
  }
  paints.setCounting(false);
  paints.report(state, state.iterations());
  times.report(state);
}
BENCHMARK(BM_HandleDragStep);

void BM_RatioBoxKey(benchmark::State& state) {
  JudgmentPageAt31 page;
  auto* box = static_cast<QLineEdit*>(child(page.dialog.get(), "txtWRLower"));
  box->setFocus();
  box->end(false);
  PaintCounter paints;
  ActionTimes times;
  paints.setCounting(true);
  for (auto _ : state) {
    times.start();
    QKeyEvent digit(QEvent::KeyPress, Qt::Key_5, Qt::NoModifier, QStringLiteral("5"));
    QApplication::sendEvent(box, &digit);
    QKeyEvent back(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier);
    QApplication::sendEvent(box, &back);
    QCoreApplication::processEvents();
    times.stop();
  }
  paints.setCounting(false);
  paints.report(state, state.iterations());
  times.report(state);
  state.SetItemsProcessed(state.iterations() * 2);
}
BENCHMARK(BM_RatioBoxKey);

// Back from the judgment page to the reference page, the reference chosen again (as the page
// asks after Back), then Next to the judgment page again; only the change that `timeBack` names
// is timed and counted.
void pageChange(benchmark::State& state, bool timeBack) {
  JudgmentPageAt31 page;
  QWidget* back = child(page.dialog.get(), "cmdBack");
  QWidget* reference = child(page.dialog.get(), "cmdAttButtons", 0);
  QWidget* next = child(page.dialog.get(), "cmdNext");
  const QWidget* judgmentPage = child(page.dialog.get(), "picStep2");
  PaintCounter paints;
  ActionTimes times;
  for (auto _ : state) {
    if (!judgmentPage->isVisible()) {
      state.SkipWithError("the dialog is not on its judgment page");
      break;
    }
    for (QWidget* button : {back, reference, next}) {
      const bool timed = button == (timeBack ? back : next);
      if (timed) {
        paints.setCounting(true);
        times.start();
      } else {
        state.PauseTiming();
      }
      click(button);
      // The new page's layout and paint belong to the change.
      QCoreApplication::processEvents();
      if (timed) {
        times.stop();
        paints.setCounting(false);
      } else {
        state.ResumeTiming();
      }
    }
  }
  paints.report(state, state.iterations());
  times.report(state);
}

void BM_PageChangeBack(benchmark::State& state) { pageChange(state, true); }
BENCHMARK(BM_PageChangeBack)->Name("PageChange/Back");

void BM_PageChangeNext(benchmark::State& state) { pageChange(state, false); }
BENCHMARK(BM_PageChangeNext)->Name("PageChange/Next");

}  // namespace
}  // namespace tnw

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
