// The direct method as a host sees it: TNW_MAVT with the real Qt dialogs, driven through the
// selection dialog and frmDirectA, with every event that reaches the host in order. The
// dialogs live inside the component's shared library, so they are found by name only.

#include "common/core/recording_ui_services.h"
#include "component/tnw_mavt.h"
#include "direct_a_dialog_helpers.h"

// Qt
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

// Std
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace tnw::direct {
namespace {

// A host that logs every event with its values, and may change the exported arrays.
class Host : public TnwMavtEvents {
 public:
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    log.push_back("UnloadTNWizard " + std::to_string(fIndex) + (WeightsDone ? " true" : " false"));
    if (onUnload) onUnload();
  }
  void ExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                      std::vector<double>& Weights, std::vector<double>& WeightsH,
                      std::vector<double>& WeightsL) override {
    std::ostringstream s;
    s << "ExportDirectAW " << TNType << " " << RefAttID << " n=" << Weights.size();
    log.push_back(s.str());
    weights = Weights;
    weightsH = WeightsH;
    weightsL = WeightsL;
    if (!Weights.empty()) Weights[0] = -1.0;  // a host may write into the dialog's array
  }
  void SendMasseges(const std::string& Msg) override { log.push_back("SendMasseges " + Msg); }

  std::vector<std::string> log;
  std::vector<double> weights, weightsH, weightsL;
  std::function<void()> onUnload;
};

QWidget* topLevel(const char* name) {
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (w->objectName() == QLatin1String(name) && w->isVisible()) return w;
  }
  return nullptr;
}

QPushButton* button(QWidget* dialog, const char* name, int index = -1) {
  return test::control<QPushButton>(dialog, name, index);
}

}  // namespace

class DirectAHostDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void finishSendsTheWeightsAndEndsTheWizard();
  void backToSelectionAndDirectAgainGivesAFreshDialog();
  void theHostsUnloadAsksNothingWhileJudgmentsAreHeld();

 private:
  QWidget* openDirect();

  RecordingUiServices m_ui;
  Host m_host;
  std::unique_ptr<TNW_MAVT> m_wizard;
};

void DirectAHostDialogTest::init() {
  m_ui = RecordingUiServices{};
  m_host = Host{};
  m_wizard = std::make_unique<TNW_MAVT>(m_ui);
  m_wizard->setEvents(&m_host);
  m_host.onUnload = [this] { m_wizard->UnloadTNWizard(); };
  std::string dir = "/opt/norix";
  m_wizard->GetCurFileData(dir, 4, TNW_SAMPLE_MODEL);
  m_wizard->ShowTNWizard();
}

void DirectAHostDialogTest::cleanup() {
  m_wizard.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
}

QWidget* DirectAHostDialogTest::openDirect() {
  QWidget* sel = topLevel("frmTNWSelMethod");
  if (sel == nullptr) return nullptr;
  QTest::mouseClick(button(sel, "cmdNext"), Qt::LeftButton);
  QWidget* direct = topLevel("frmDirectA");
  if (direct == nullptr || !QTest::qWaitForWindowExposed(direct)) return nullptr;
  return direct;
}

void DirectAHostDialogTest::finishSendsTheWeightsAndEndsTheWizard() {
  QWidget* d = openDirect();
  QVERIFY(d != nullptr);
  QVERIFY(d->isModal());
  QVERIFY(!topLevel("frmTNWSelMethod"));
  // Price and safety first, fuel and running costs next, boot and comfort last.
  const int groups[] = {1, 2, 1, 3, 3, 2};
  QTest::mouseClick(button(d, "cmdAdd"), Qt::LeftButton);
  for (int j = 0; j < 6; ++j) {
    QVERIFY(test::dragAndDrop(test::orderBox(d, groups[j]), QStringLiteral("A%1").arg(j)));
  }
  QTest::mouseClick(button(d, "cmdNext"), Qt::LeftButton);
  QTest::mouseClick(button(d, "cmdAttButtons", 1), Qt::LeftButton);
  QTest::mouseClick(button(d, "cmdNext"), Qt::LeftButton);
  // Targets 0 and 2 (more important) and 3 and 4 (less important) are judged; 5 is tied.
  auto* combo = test::control<QComboBox>(d, "imgcmbTargetAtt");
  auto* lower = test::control<QLineEdit>(d, "txtWRLower");
  auto* upper = test::control<QLineEdit>(d, "txtWRUpper");
  const auto judge = [&](int target, const char* lo, const char* hi) {
    combo->setCurrentIndex(target);
    emit combo->activated(target);
    for (QLineEdit* box : {upper, lower}) {
      box->setFocus(Qt::MouseFocusReason);
      QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
      QTest::keyClicks(box, QString::fromLatin1(box == lower ? lo : hi));
    }
    QTest::keyClick(lower, Qt::Key_Return);
    QTest::mouseClick(button(d, "cmdEnter"), Qt::LeftButton);
  };
  judge(0, "1.5", "2");
  judge(3, "0.5", "0.6");
  QVERIFY(button(d, "cmdNext")->isEnabled());
  QTest::mouseClick(button(d, "cmdNext"), Qt::LeftButton);
  QTest::mouseClick(button(d, "cmdFinish"), Qt::LeftButton);

  const std::vector<std::string> expected{
      "SendMasseges Select a method to make value judgments between the attributes.",
      "SendMasseges Order the attributes according to their relative importance.",
      "SendMasseges  Indicate a value reference region on the two selected attributes.",
      "ExportDirectAW MAVT_DIRECT 1 n=6", "UnloadTNWizard 4 true"};
  QCOMPARE(m_host.log, expected);
  // Lower ratios 1.5 1 1.5 0.5 0.5 1, upper 2 1 2 0.6 0.6 1: the crossed sums are 6 and 7.2.
  QCOMPARE(m_host.weightsL[0], 1.5 / 7.2);
  QCOMPARE(m_host.weightsH[3], 0.6 / 6.0);
  QCOMPARE(m_host.weights[5], (1.0 / 6.0 + 1.0 / 7.2) / 2);
  // The host's unload in its handler released every dialog.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void DirectAHostDialogTest::backToSelectionAndDirectAgainGivesAFreshDialog() {
  QWidget* first = openDirect();
  QVERIFY(first != nullptr);
  QVERIFY(test::dragAndDrop(test::orderBox(first, 1), QStringLiteral("A0")));
  QPointer<QWidget> gone(first);
  QTest::mouseClick(button(first, "cmdBack"), Qt::LeftButton);
  QVERIFY(topLevel("frmTNWSelMethod") != nullptr);
  QTRY_VERIFY(gone.isNull());
  QWidget* second = openDirect();
  QVERIFY(second != nullptr);
  // A new dialog starts from an empty order again.
  QVERIFY(test::control<QWidget>(second, "cmdAttA", 0)->isVisible());
  QTest::mouseClick(button(second, "cmdCancel"), Qt::LeftButton);
  QCOMPARE(m_host.log.back(), std::string("UnloadTNWizard 4 false"));
}

void DirectAHostDialogTest::theHostsUnloadAsksNothingWhileJudgmentsAreHeld() {
  QWidget* d = openDirect();
  QVERIFY(d != nullptr);
  QTest::mouseClick(button(d, "cmdAdd"), Qt::LeftButton);
  const int groups[] = {1, 2, 1, 3, 3, 2};
  for (int j = 0; j < 6; ++j) {
    QVERIFY(test::dragAndDrop(test::orderBox(d, groups[j]), QStringLiteral("A%1").arg(j)));
  }
  QTest::mouseClick(button(d, "cmdNext"), Qt::LeftButton);
  QTest::mouseClick(button(d, "cmdAttButtons", 1), Qt::LeftButton);
  QTest::mouseClick(button(d, "cmdNext"), Qt::LeftButton);
  // The first target as it starts: one judgment recorded.
  QTest::mouseClick(button(d, "cmdEnter"), Qt::LeftButton);
  QVERIFY(button(d, "cmdUndo")->isEnabled());
  // Cancel asks; No keeps the dialog and tells the host nothing.
  m_ui.setAnswer(false);
  const std::size_t events = m_host.log.size();
  QTest::mouseClick(button(d, "cmdCancel"), Qt::LeftButton);
  QCOMPARE(m_ui.questions().size(), std::size_t{1});
  QCOMPARE(m_ui.questions()[0].text, std::string("Discard 1 judgment?"));
  QCOMPARE(m_host.log.size(), events);
  QVERIFY(d->isVisible());
  // The host unloading the wizard closes the dialog without a question.
  QPointer<QWidget> gone(d);
  m_wizard->UnloadTNWizard();
  QCOMPARE(m_ui.questions().size(), std::size_t{1});
  QCOMPARE(m_host.log.size(), events);
  QTRY_VERIFY(gone.isNull());
}

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::DirectAHostDialogTest)
#include "direct_a_host_dialog_test.moc"
