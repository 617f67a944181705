// Save and Load of frmDirectA's judgment step, clicked by objectName: the saved file is the
// scenario `tnwizard direct` reads and plays to the same intervals, it loads back to the same
// page, and a file that does not fit shows why and changes nothing.

#include "common/core/recording_ui_services.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct_a_dialog_helpers.h"
#include "direct_test_models.h"
#include "model_json/direct_player.h"
#include "model_json/judgment_files.h"
#include "model_json/scenario_json.h"
#include "recording_direct_a_events.h"

// Qt
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

// Std
#include <memory>

namespace tnw::direct {

using test::control;

class DirectASavedJudgmentsDialogTest : public QObject {
  Q_OBJECT

 private:
  // Three attributes in three groups, the reference 1 in the middle.
  void reachJudgments() {
    m_context = test::makeContext(3);
    m_dialog = std::make_unique<DirectADialog>(m_context, m_ui, m_events, nullptr, &m_file);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAdd"), Qt::LeftButton);
    for (int j = 0; j < 3; ++j) {
      QVERIFY(
          test::dragAndDrop(test::orderBox(m_dialog.get(), j + 1), QStringLiteral("A%1").arg(j)));
    }
    auto* next = control<QPushButton>(m_dialog.get(), "cmdNext");
    QTest::mouseClick(next, Qt::LeftButton);
    QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAttButtons", 1), Qt::LeftButton);
    QTest::mouseClick(next, Qt::LeftButton);
    QCOMPARE(m_dialog->presenter().WizardStep(), 2);
    m_ui.clearMessages();
  }

  void typeInto(const char* name, const QString& text) {
    auto* box = control<QLineEdit>(m_dialog.get(), name);
    box->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, text);
  }

  // Target 0 judged [1.1, 1.5] against the reference.
  void judgeFirstTarget() {
    typeInto("txtWRLower", QStringLiteral("1.1"));
    typeInto("txtWRUpper", QStringLiteral("1.5"));
    click("cmdEnter");
    QVERIFY(m_dialog->presenter().judgment().judgments().judged(0));
  }

  void click(const char* name) {
    QTest::mouseClick(control<QPushButton>(m_dialog.get(), name), Qt::LeftButton);
  }

  // The lower and upper ratios and the judged flags of the page.
  std::vector<double> state() const {
    const WeightRatioJudgments& j = m_dialog->presenter().judgment().judgments();
    std::vector<double> out;
    for (int i = 0; i < 3; ++i) {
      out.push_back(j.lower(i));
      out.push_back(j.upper(i));
      out.push_back(j.judged(i) ? 1.0 : 0.0);
    }
    return out;
  }

  std::string path(const char* name) const { return m_dir.filePath(name).toStdString(); }

  void writeFile(const char* name, const QByteArray& text) {
    QFile f(m_dir.filePath(name));
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(text);
  }

  void expectRefused(const char* name, const std::string& why) {
    reachJudgments();
    judgeFirstTarget();
    const std::vector<double> before = state();
    m_ui.setOpenFile(path(name));
    click("cmdLoadJudgments");
    QCOMPARE(m_ui.messages().size(), std::size_t{1});
    const std::string& text = m_ui.messages()[0].text;
    QVERIFY2(text.rfind("These judgments cannot be loaded, and nothing was changed.\r", 0) == 0,
             text.c_str());
    QVERIFY2(text.find(why) != std::string::npos, text.c_str());
    QCOMPARE(state(), before);
  }

  WizardContext m_context;
  RecordingUiServices m_ui;
  test::RecordingDirectAEvents m_events;
  JsonIntervalsFile m_file;
  std::unique_ptr<QTemporaryDir> m_tmp;
  QDir m_dir;
  std::unique_ptr<DirectADialog> m_dialog;

 private slots:
  void init() {
    m_tmp = std::make_unique<QTemporaryDir>();
    QVERIFY(m_tmp->isValid());
    m_dir = QDir(m_tmp->path());
  }

  void cleanup() {
    m_dialog.reset();
    m_events = {};
    m_ui = RecordingUiServices();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }

  void theButtonsShowOnTheJudgmentStepOnly() {
    reachJudgments();
    auto* save = control<QPushButton>(m_dialog.get(), "cmdSaveJudgments");
    auto* load = control<QPushButton>(m_dialog.get(), "cmdLoadJudgments");
    QVERIFY(save->isVisible() && load->isVisible());
    QVERIFY(!save->isEnabled());
    QVERIFY(load->isEnabled());
    QVERIFY(!save->toolTip().isEmpty() && !load->toolTip().isEmpty());
    judgeFirstTarget();
    QVERIFY(save->isEnabled());
    click("cmdBack");
    QVERIFY(!save->isVisible());
  }

  void theSavedFileIsWhatTheCommandLinePlays() {
    reachJudgments();
    judgeFirstTarget();
    m_ui.setSaveFile(path("intervals.json"));
    click("cmdSaveJudgments");
    QVERIFY(m_ui.messages().empty());
    QCOMPARE(m_ui.fileRequests().back().suggestedName, std::string("intervals.json"));
    QFile f(m_dir.filePath("intervals.json"));
    QVERIFY(f.open(QIODevice::ReadOnly));
    DirectScenario read;
    QVERIFY(!readDirectScenario(f.readAll().toStdString(), read).has_value());
    QCOMPARE(read.order, std::optional<std::vector<int>>(std::vector<int>{1, 2, 3}));
    QCOMPARE(read.reference, std::optional<int>(1));
    QCOMPARE(read.steps.size(), std::size_t{1});
    // The command line plays the file to the same ratios.
    WizardContext cli = test::makeContext(3);
    RecordingUiServices cliUi;
    const DirectPlayResult out = playDirectScenario(cli, cliUi, read);
    QVERIFY(!out.error.has_value());
    const WeightRatioJudgments& j = m_dialog->presenter().judgment().judgments();
    for (int i = 0; i < 3; ++i) {
      QCOMPARE(out.output["lower"][i].get<double>(), j.lower(i));
      QCOMPARE(out.output["upper"][i].get<double>(), j.upper(i));
    }
    QCOMPARE(out.output["steps"][0]["recorded"].get<bool>(), true);
  }

  void aSavedFileLoadsBackToTheSamePage() {
    reachJudgments();
    judgeFirstTarget();
    const std::vector<double> saved = state();
    m_ui.setSaveFile(path("intervals.json"));
    click("cmdSaveJudgments");
    click("cmdReStart");
    QVERIFY(state() != saved);
    m_ui.setOpenFile(path("intervals.json"));
    click("cmdLoadJudgments");
    QVERIFY(m_ui.messages().empty());
    QCOMPARE(state(), saved);
    QVERIFY(control<QPushButton>(m_dialog.get(), "cmdSaveJudgments")->isEnabled());
  }

  void cancelledChoicesChangeNothing() {
    reachJudgments();
    judgeFirstTarget();
    const std::vector<double> before = state();
    click("cmdSaveJudgments");
    click("cmdLoadJudgments");
    QCOMPARE(m_ui.fileRequests().size(), std::size_t{2});
    QVERIFY(m_ui.messages().empty());
    QCOMPARE(state(), before);
    QVERIFY(QDir(m_dir.path()).entryList(QDir::Files).isEmpty());
  }

  void aFileForMoreAttributesChangesNothing() {
    writeFile("wide.json", R"({"order": [1, 2, 3, 3], "reference": 1, "steps": []})");
    expectRefused("wide.json", "another importance order or reference attribute");
  }

  void anIntervalOutOfRangeChangesNothing() {
    writeFile("zero.json", R"({"order": [1, 2, 3], "reference": 1,
                               "steps": [{"target": 0, "lower": "0", "upper": "1.5"}]})");
    expectRefused("zero.json", "step [0]: ");
  }

  void malformedJsonChangesNothing() {
    writeFile("broken.json", R"({"order": [1, 2, 3], "reference": 1, "steps": [)");
    expectRefused("broken.json", "line ");
  }
};

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::DirectASavedJudgmentsDialogTest)
#include "direct_a_saved_judgments_dialog_test.moc"
