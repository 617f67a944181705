// Creates, shows and unloads the wizard many times in one process. Run with LeakSanitizer linked
// in: any dialog, presenter or relay object left behind is reported at exit and fails the test.
// The runs take turns: the direct method to Finish (order, reference, a typed judgment and one
// by the cone's handles with Timer1 running, results, export), the trade-off method to Finish
// (judgments, regression, charts, export), a cancel on the method's first page, and a way back
// from the method to the selection dialog followed by a cancel there.

#include "common/core/recording_ui_services.h"
#include "component/tnw_mavt.h"

// Qt
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

// Std
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

// Unloads the wizard when it asks to be ended, as a host does, and counts what arrives.
class Host : public tnw::TnwMavtEvents {
 public:
  explicit Host(tnw::TNW_MAVT& wizard) : m_wizard(wizard) {}
  void UnloadTNWizard(std::int16_t, bool WeightsDone) override {
    ++unloads;
    weightsDone = WeightsDone;
    m_wizard.UnloadTNWizard();
  }
  void ExportDirectAW(const std::string&, std::int16_t, std::vector<double>& Weights,
                      std::vector<double>&, std::vector<double>&) override {
    ++exports;
    exported = Weights.size();
  }
  void ExportTradeOffsW(const std::string&, std::vector<double>& Weights, std::vector<double>&,
                        std::vector<double>&) override {
    ++exports;
    exported = Weights.size();
  }

  int unloads = 0;
  int exports = 0;
  std::size_t exported = 0;
  bool weightsDone = false;

 private:
  tnw::TNW_MAVT& m_wizard;
};

enum class Run { Direct, TradeOffs, Cancel, BackThenCancel };

// The visible wizard dialog of the given name, or null.
QWidget* visibleDialog(const char* name) {
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (w->objectName() == QLatin1String(name) && w->isVisible()) return w;
  }
  return nullptr;
}

// The wizard dialog the user sees now.
QWidget* currentDialog() {
  for (const char* name : {"frmDirectA", "frmTradeOffsA", "frmTNWSelMethod"}) {
    if (QWidget* w = visibleDialog(name)) return w;
  }
  return nullptr;
}

// The control named `name` (with control-array index `index` unless -1) in d, or null.
template <typename T>
T* control(const QWidget* d, const char* name, int index = -1) {
  if (d == nullptr) return nullptr;
  const QString n = QString::fromLatin1(name);
  if (index >= 0) return d->findChild<T*>(n + QLatin1Char('_') + QString::number(index));
  return d->findChild<T*>(n);
}

// What the run tried last, for the report of a failed run.
std::string g_step;

// Clicks the enabled button `name` of d; false when there is none.
bool press(const QWidget* d, const char* name, int index = -1) {
  g_step = std::string("press ") + name + (index >= 0 ? " " + std::to_string(index) : "");
  auto* b = control<QPushButton>(d, name, index);
  if (b == nullptr || !b->isEnabled()) return false;
  b->click();
  return true;
}

// Drops the attribute with `tag` on the order page's group box of `group`, as a drag ends.
bool drop(const QWidget* d, int group, const QString& tag) {
  g_step = "drop " + tag.toStdString() + " on group " + std::to_string(group);
  for (QWidget* box :
       d->findChildren<QWidget*>(QRegularExpression(QStringLiteral("^picOrder_\\d+$")))) {
    if (box->property("tag").toInt() != group || !box->isVisible()) continue;
    QMimeData mime;
    mime.setData(QStringLiteral("application/x-tnwizard-attribute"), tag.toUtf8());
    const QPoint pos = box->rect().center();
    QDragEnterEvent enter(pos, Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box, &enter);
    QDropEvent dropped(QPointF(pos), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box, &dropped);
    return dropped.isAccepted();
  }
  return false;
}

// Drags handle `index` of the cone to the fraction (fx, fy) of the cone's square, from its left
// and from its top.
bool dragHandle(const QWidget* d, int index, double fx, double fy) {
  g_step = "drag handle " + std::to_string(index);
  auto* cone = control<QWidget>(d, "picTradeOffsRange");
  auto* handle = control<QWidget>(d, "picHandle", index);
  if (cone == nullptr || handle == nullptr || !handle->isVisible()) return false;
  const int side = std::min(cone->width(), cone->height());
  const QPoint target(qRound(fx * side), cone->height() - side + qRound(fy * side));
  const QPoint from = handle->mapToGlobal(handle->rect().center());
  const QPoint to = cone->mapToGlobal(target);
  const auto send = [handle](QEvent::Type type, QPoint global, Qt::MouseButton button,
                             Qt::MouseButtons buttons) {
    QMouseEvent e(type, QPointF(handle->mapFromGlobal(global)), QPointF(global), button, buttons,
                  Qt::NoModifier);
    QApplication::sendEvent(handle, &e);
  };
  send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
  send(QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
  send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
  send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
  return true;
}

// Types text into a ratio box as the user does: the old text selected, the new one typed.
void typeRatio(QLineEdit* box, const char* text) {
  box->setFocus(Qt::TabFocusReason);
  box->selectAll();
  QTest::keyClicks(box, QString::fromLatin1(text));
}

// Runs the event loop until Timer1 has changed the status lights' picture (they blink), at most
// for half a second; false if they did not change.
bool lightsBlink(const QWidget* d) {
  g_step = "wait for the status lights to blink";
  auto* lights = control<QWidget>(d, "picJudgmentState");
  if (lights == nullptr) return false;
  const QImage before = lights->grab().toImage();
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < 500) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    if (lights->grab().toImage() != before) return true;
  }
  return false;
}

// The sample's six attributes in three groups (Comfort and Running costs most important),
// Comfort the reference, Purchase price judged by typing and Safety rating by the handles.
bool runDirect(QWidget* d) {
  if (!press(d, "cmdAttA", 0) || !press(d, "cmdAttA", 1) || !press(d, "cmdInsert")) return false;
  if (!press(d, "cmdAttA", 2) || !drop(d, 1, QStringLiteral("A3"))) return false;
  if (!press(d, "cmdInsert") || !press(d, "cmdAttA", 4) || !drop(d, 1, QStringLiteral("A5"))) {
    return false;
  }
  if (!press(d, "cmdNext") || !press(d, "cmdAttButtons", 4) || !press(d, "cmdNext")) return false;
  auto* lower = control<QLineEdit>(d, "txtWRLower");
  auto* upper = control<QLineEdit>(d, "txtWRUpper");
  auto* targets = control<QComboBox>(d, "imgcmbTargetAtt");
  if (lower == nullptr || upper == nullptr || targets == nullptr) return false;
  typeRatio(lower, "0.5");
  typeRatio(upper, "0.7");
  QTest::keyClick(upper, Qt::Key_Tab);
  if (!press(d, "cmdEnter")) return false;
  // Down twice: past Fuel consumption, judged by its tie, to Safety rating.
  QTest::keyClick(targets, Qt::Key_Down);
  QTest::keyClick(targets, Qt::Key_Down);
  QCoreApplication::processEvents();
  // Above the diagonal first (inconsistent: Timer1 blinks the lamp), then a consistent cone.
  if (!dragHandle(d, 1, 0.4, 0.4)) return false;
  auto* enter = control<QPushButton>(d, "cmdEnter");
  if (enter == nullptr || enter->isEnabled() || !lightsBlink(d)) return false;
  if (!dragHandle(d, 0, 0.7, 0.44) || !dragHandle(d, 1, 0.7, 0.37)) return false;
  return press(d, "cmdEnter") && press(d, "cmdNext") && press(d, "cmdFinish");
}

// Every trade-off entered as drawn, then Next runs the regression and draws the charts.
bool runTradeOffs(QWidget* d) {
  for (int i = 0; i < 30; ++i) {
    if (!press(d, "cmdTradeOffEnter")) return false;
  }
  return press(d, "cmdNext") && press(d, "cmdFinish");
}

// One run of the wizard: shown, a method chosen, driven as `run` says, unloaded, destroyed.
bool runOnce(tnw::RecordingUiServices& ui, const char* model, Run run, int method) {
  tnw::TNW_MAVT wizard(ui);
  Host host(wizard);
  wizard.setEvents(&host);
  std::string dir = "/opt/norix";
  wizard.GetCurFileData(dir, 1, model);
  wizard.ShowTNWizard();
  wizard.ShowTNWizard();
  QWidget* d = visibleDialog("frmTNWSelMethod");
  if (d == nullptr) return false;
  d->findChild<QListWidget*>(QStringLiteral("lstMethods"))->setCurrentRow(method);
  if (!press(d, "cmdNext")) return false;
  QWidget* now = currentDialog();
  if (now == nullptr || now == d) return false;
  if (!QTest::qWaitForWindowActive(now)) return false;
  bool driven = false;
  switch (run) {
    case Run::Direct:
      driven = runDirect(now);
      break;
    case Run::TradeOffs:
      driven = runTradeOffs(now);
      break;
    case Run::Cancel:
      driven = press(now, "cmdCancel");
      break;
    case Run::BackThenCancel:
      driven = press(now, "cmdBack") && currentDialog() == d && press(d, "cmdCancel");
      break;
  }
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  const bool finished = run == Run::Direct || run == Run::TradeOffs;
  return driven && host.unloads == 1 && host.weightsDone == finished &&
         host.exports == (finished ? 1 : 0) && host.exported == (finished ? 6U : 0U);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  if (argc != 3) {
    std::fputs("usage: wizard_leak_test MODEL RUNS\n", stderr);
    return 2;
  }
  const int runs = std::stoi(argv[2]);
  tnw::RecordingUiServices ui;
  const Run kinds[] = {Run::Direct, Run::TradeOffs, Run::Cancel, Run::BackThenCancel};
  for (int i = 0; i < runs; ++i) {
    const Run run = kinds[i % 4];
    // Direct is the list's first method, TradeOffs its second; the others take turns.
    const int method = run == Run::Direct ? 0 : run == Run::TradeOffs ? 1 : (i / 4) % 2;
    if (!runOnce(ui, argv[1], run, method)) {
      std::fprintf(stderr, "run %d (kind %d): the wizard did not run as expected (last: %s)\n", i,
                   i % 4, g_step.c_str());
      for (const auto& m : ui.messages()) std::fprintf(stderr, "  message: %s\n", m.text.c_str());
      return 1;
    }
    ui.clearMessages();
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  const auto left = QApplication::topLevelWidgets().size();
  if (left != 0) {
    std::fprintf(stderr, "%lld top-level widgets left after %d runs\n",
                 static_cast<long long>(left), runs);
    return 1;
  }
  std::printf(
      "%d runs (direct and trade-off to Finish, cancels, back to selection): no widget "
      "left\n",
      runs);
  return 0;
}
