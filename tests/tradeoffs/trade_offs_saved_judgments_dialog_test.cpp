// Save and Load of the trade-off judgment page, clicked by objectName: the saved file is the
// list `tnwizard tradeoffs` reads and fits as the dialog does, loads back to the same state, and
// a file that does not fit the model shows why and changes nothing.

#include "model_json/judgment_files.h"
#include "model_json/tradeoffs_player.h"
#include "trade_off_dialog_fixture.h"
#include "tradeoffs/core/saved_judgments.h"

// Qt
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QRadioButton>
#include <QTabBar>
#include <QTemporaryDir>

namespace tnw::tradeoffs {

using namespace tnw::testing;

class TradeOffsSavedJudgmentsDialogTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<TradeOffsADialog> open() {
    auto d = std::make_unique<TradeOffsADialog>(m_context, m_ui, m_events, &m_random, &m_file);
    d->showModal();
    if (!QTest::qWaitForWindowExposed(d.get())) qFatal("the dialog was not shown");
    return d;
  }

  // Five judgments typed in automatic mode, the second on the verbal tab.
  void enterByHand(TradeOffsADialog* d) {
    const char* scores[5][4] = {{"6", "2", "3", "7"},
                                {"5", "1", "2", "8"},
                                {"4.5", "3", "1", "9"},
                                {"7", "2", "4", "6"},
                                {"3", "6", "8", "2.5"}};
    for (int k = 0; k < 5; ++k) {
      typeScores(d, scores[k][0], scores[k][1], scores[k][2], scores[k][3]);
      if (k == 1) {
        QTest::keyClick(child<QTabBar>(d, "tsComparisonApproaches"), Qt::Key_Right);
        QTest::mouseClick(child<QRadioButton>(d, "optPCVerbal_1"), Qt::LeftButton);
      }
      clickButton(d, "cmdTradeOffEnter");
      if (k == 1) QTest::keyClick(child<QTabBar>(d, "tsComparisonApproaches"), Qt::Key_Left);
    }
  }

  std::string path(const char* name) const { return m_dir.filePath(name).toStdString(); }

  void writeFile(const char* name, const QByteArray& text) {
    QFile f(m_dir.filePath(name));
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(text);
  }

  static std::vector<TradeOffJudgment> judgments(const TradeOffsADialog& d) {
    return SavedJudgments::recorded(
        const_cast<TradeOffsADialog&>(d).presenter().judgmentPage().store());
  }

  static void compare(const std::vector<TradeOffJudgment>& a,
                      const std::vector<TradeOffJudgment>& b) {
    QCOMPARE(a.size(), b.size());
    for (std::size_t k = 0; k < a.size(); ++k) {
      QCOMPARE(a[k].first, b[k].first);
      QCOMPARE(a[k].second, b[k].second);
      for (int i = 0; i < 4; ++i) QCOMPARE(a[k].scores[i], b[k].scores[i]);
      QCOMPARE(a[k].response, b[k].response);
    }
  }

  // Loads the file `name` into a dialog holding three judgments and expects one message that
  // says `why`, and nothing changed.
  void expectRefused(const char* name, const std::string& why) {
    auto d = open();
    enterByHand(d.get());
    const std::vector<TradeOffJudgment> before = judgments(*d);
    const QString thisNum = child<QLabel>(d.get(), "labPCThisNum")->text();
    m_ui.setOpenFile(path(name));
    clickButton(d.get(), "cmdLoadJudgments");
    QCOMPARE(m_ui.messages().size(), std::size_t{1});
    const std::string& text = m_ui.messages()[0].text;
    QVERIFY2(text.rfind("These judgments cannot be loaded, and nothing was changed.\r", 0) == 0,
             text.c_str());
    QVERIFY2(text.find(why) != std::string::npos, text.c_str());
    QCOMPARE(m_ui.messages()[0].title, std::string("NORIX"));
    compare(judgments(*d), before);
    QCOMPARE(child<QLabel>(d.get(), "labPCThisNum")->text(), thisNum);
    QVERIFY(child<QRadioButton>(d.get(), "optPCAutomatic")->isChecked());
  }

  WizardContext m_context;
  RecordingUiServices m_ui;
  RecordingTradeOffsEvents m_events;
  SequenceRandomSource m_random{{0.2f, 0.7f}};
  JsonJudgmentsFile m_file;
  std::unique_ptr<QTemporaryDir> m_tmp;
  QDir m_dir;

 private slots:
  void init() {
    m_context = {};
    m_context.FileIndex = 3;
    m_context.model = makeModel(3);
    m_ui = RecordingUiServices();
    m_tmp = std::make_unique<QTemporaryDir>();
    QVERIFY(m_tmp->isValid());
    m_dir = QDir(m_tmp->path());
  }

  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }

  void theButtonsFollowTheRecordedJudgments() {
    auto d = open();
    auto* save = child<QPushButton>(d.get(), "cmdSaveJudgments");
    auto* load = child<QPushButton>(d.get(), "cmdLoadJudgments");
    QVERIFY(save->isVisible() && load->isVisible());
    QVERIFY(!save->isEnabled());
    QVERIFY(load->isEnabled());
    QVERIFY(!save->toolTip().isEmpty() && !load->toolTip().isEmpty());
    QCOMPARE(save->focusPolicy(), Qt::StrongFocus);
    enterByHand(d.get());
    QVERIFY(save->isEnabled());
    clickButton(d.get(), "cmdTradeOffClearAll");
    QVERIFY(!save->isEnabled());
  }

  void withoutAFileFormTheButtonsAreHidden() {
    TradeOffsADialog d(m_context, m_ui, m_events, &m_random);
    d.showModal();
    QVERIFY(QTest::qWaitForWindowExposed(&d));
    QVERIFY(child<QPushButton>(&d, "cmdSaveJudgments")->isHidden());
    QVERIFY(child<QPushButton>(&d, "cmdLoadJudgments")->isHidden());
    d.hide();
  }

  void theSavedFileIsWhatTheCommandLineReadsAndFits() {
    auto d = open();
    enterByHand(d.get());
    m_ui.setSaveFile(path("session.json"));
    clickButton(d.get(), "cmdSaveJudgments");
    QVERIFY(m_ui.messages().empty());
    QCOMPARE(m_ui.fileRequests().size(), std::size_t{1});
    QCOMPARE(m_ui.fileRequests()[0].suggestedName, std::string("judgments.json"));
    QFile f(m_dir.filePath("session.json"));
    QVERIFY(f.open(QIODevice::ReadOnly));
    const std::string text = f.readAll().toStdString();
    std::vector<TradeOffJudgment> read;
    QVERIFY(!readTradeOffJudgments(text, 3, read).has_value());
    compare(read, judgments(*d));
    QCOMPARE(read[1].response, -2);
    // The command line's run of the file fits what the dialog fits.
    WizardContext cli = m_context;
    SequenceRandomSource random{{0.5f}};
    const nlohmann::ordered_json out = playTradeOffJudgments(cli, read, random);
    QCOMPARE(read.size(), std::size_t{5});
    QVERIFY(out["error"].is_null());
    clickButton(d.get(), "cmdNext");
    QVERIFY(!d->presenter().fitError().has_value());
    QCOMPARE(out["numObs"].get<int>(), int{d->presenter().record().NumObs});
    QCOMPARE(out["coef"].size(), std::size_t{3});
    for (std::size_t i = 0; i < 3; ++i) {
      QCOMPARE(out["coef"][i].get<double>(), d->presenter().record().Coef[i]);
    }
  }

  void aSavedFileLoadsBackToTheSameState() {
    std::vector<TradeOffJudgment> saved;
    {
      auto d = open();
      enterByHand(d.get());
      saved = judgments(*d);
      m_ui.setSaveFile(path("session.json"));
      clickButton(d.get(), "cmdSaveJudgments");
      d->hide();
    }
    auto d = open();
    typeScores(d.get(), "9", "9", "1", "1");
    clickButton(d.get(), "cmdTradeOffEnter");
    m_ui.setOpenFile(path("session.json"));
    clickButton(d.get(), "cmdLoadJudgments");
    QVERIFY(m_ui.messages().empty());
    // The loaded judgments replace the one entered.
    compare(judgments(*d), saved);
    QCOMPARE(child<QLabel>(d.get(), "labPCThisNum")->text(), QStringLiteral("6"));
    QVERIFY(child<QRadioButton>(d.get(), "optPCManual")->isChecked());
    QVERIFY(child<QPushButton>(d.get(), "cmdSaveJudgments")->isEnabled());
    // Saving the loaded judgments writes the same file again.
    m_ui.setSaveFile(path("again.json"));
    clickButton(d.get(), "cmdSaveJudgments");
    QFile a(m_dir.filePath("session.json"));
    QFile b(m_dir.filePath("again.json"));
    QVERIFY(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
    QCOMPARE(b.readAll(), a.readAll());
  }

  void cancelledChoicesChangeNothing() {
    auto d = open();
    enterByHand(d.get());
    const std::vector<TradeOffJudgment> before = judgments(*d);
    clickButton(d.get(), "cmdSaveJudgments");
    clickButton(d.get(), "cmdLoadJudgments");
    QCOMPARE(m_ui.fileRequests().size(), std::size_t{2});
    QVERIFY(m_ui.messages().empty());
    compare(judgments(*d), before);
    QVERIFY(QDir(m_dir.path()).entryList(QDir::Files).isEmpty());
  }

  void aFileForMoreAttributesChangesNothing() {
    writeFile("wide.json", R"([{"first": 0, "second": 3, "scores": [1, 2, 3, 4]}])");
    expectRefused("wide.json",
                  "/0/second: judgment [0]: \"second\" 3 is not an attribute index "
                  "of the model (its indexes: 0 to 2)");
  }

  void aScoreOutOfRangeChangesNothing() {
    writeFile("range.json", R"([{"first": 0, "second": 1, "scores": [1, 2, 3, 4]},
                                 {"first": 1, "second": 2, "scores": [1, 2, 3, 40]}])");
    expectRefused("range.json",
                  "judgment [1]: The data you entered should be in the relevant score range");
  }

  void malformedJsonChangesNothing() {
    writeFile("broken.json", R"([{"first": 0, "second": 1, "scores": [1, 2, 3, 4]})");
    expectRefused("broken.json", "line ");
  }

  void aMissingFileChangesNothing() {
    expectRefused("missing.json", "There are problems in accessing the relevant data.");
  }
};

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::TradeOffsSavedJudgmentsDialogTest)
#include "trade_offs_saved_judgments_dialog_test.moc"
