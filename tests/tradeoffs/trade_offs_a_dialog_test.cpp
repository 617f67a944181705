#include "common/core/number_format.h"
#include "graphs/core/palette.h"
#include "graphs/ui/chart_widget.h"
#include "trade_off_dialog_fixture.h"
#include "tradeoffs/core/judgment_page.h"
#include "tradeoffs/ui/pc_point_widget.h"

// Qt
#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QPrinter>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

// Std
#include <cmath>

namespace tnw::tradeoffs {

using namespace tnw::testing;

namespace {

// How many pixels of an image have exactly the palette colour.
int countColour(const QImage& image, int paletteIndex) {
  const QRgb want = 0xFF000000u | paletteColour(paletteIndex);
  int n = 0;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) n += (line[x] | 0xFF000000u) == want ? 1 : 0;
  }
  return n;
}

}  // namespace

class TradeOffsADialogTest : public QObject, TradeOffDialogParts {
  Q_OBJECT

 private:
  std::unique_ptr<TradeOffsADialog> open(int numAtt) {
    auto d = showDialog(makeModel(numAtt));
    [&] { QVERIFY(QTest::qWaitForWindowExposed(d.get())); }();
    return d;
  }
  static QString text(QWidget* d, const char* name) {
    if (auto* label = d->findChild<QLabel*>(QString::fromLatin1(name))) return label->text();
    return child<QLineEdit>(d, QString::fromLatin1(name))->text();
  }
  static void verifyPair(QWidget* d, int first, int second) {
    QCOMPARE(child<QListWidget>(d, "lstTradeOffFirstC")->currentRow(), first);
    QCOMPARE(child<QListWidget>(d, "lstTradeOffSecondC")->currentRow(), second);
  }
  static void enterTradeOff(QWidget* d) {
    // Enter in a score box checks the ranges and hands the focus to the Enter button.
    QTest::keyClick(child<QLineEdit>(d, "txtTradeOffBSecondScore"), Qt::Key_Return);
    auto* enter = child<QPushButton>(d, "cmdTradeOffEnter");
    QVERIFY(enter->hasFocus());
    QTest::keyClick(enter, Qt::Key_Space);
  }
  static QImage showChart(QWidget* d, const char* key) {
    auto* bar = child<QToolBar>(d, "tbWeightCharts");
    auto* action = child<QAction>(bar, QString::fromLatin1(key));
    QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
    return child<ChartWidget>(d, "picWeightGraph")->grab().toImage();
  }
  void runFullTradeOffs(TradeOffsADialog* d);


 private slots:
  void init() {
    renewParts();
    m_context.FileIndex = 3;
    m_context.NorixDir = "C:\\NORIX";
  }

  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }

  void showsEveryNamedControlWithItsText();
  void fullRunOfThreeAttributesExportsCloseEstimatesAsWeightsAndWeightsL();
  void scoreOutsideItsRangeShowsTheRangeInSinglePrecision();
  void keyFilterDiscardsLettersAndSigns();
  void sameAttributeInBothListsIsRefusedWithEachListsWording();
  void scoreBoxesAreNamedAfterTheAttributesShown();
  void twoAttributeModelReachesTheDefinedOutcomeWithoutExport();
  void cancelOnEitherPageUnloadsWithoutExport();
  void backOnTheResultsPageStartsTheTradeOffsAgain();
  void helpOpensTheHostsHelpFileAtTheWizardTopic();
  void dragCursorsComeFromTheHostsIconsWhenPresent();
  void printWritesTheResultsPageAsVectorPdf();
  void judgmentsLeaveThePrintButtonAsItIs();
  void tabOrderFollowsTheLayout();
  void mnemonicsAreUniqueOnEachPage();
};

void TradeOffsADialogTest::showsEveryNamedControlWithItsText() {
  auto d = open(4);
  QCOMPARE(d->objectName(), QStringLiteral("frmTradeOffsA"));
  QCOMPARE(d->windowTitle(), QStringLiteral("Tarnel Wizard"));
  QCOMPARE(text(d.get(), "lblInstruction"),
           QStringLiteral(" Give your preference between the two selected criteria."));
  const std::pair<const char*, const char*> buttons[] = {{"cmdBack", "< &Back"},
                                                         {"cmdNext", "&Next >"},
                                                         {"cmdFinish", "&Finish"},
                                                         {"cmdCancel", "&Cancel"},
                                                         {"cmdTNWizardHelp", "&Help"},
                                                         {"cmdPrint", "&Print"},
                                                         {"cmdTradeOffClearAll", "Clear &All"},
                                                         {"cmdTradeOffEnter", "&Enter"}};
  for (const auto& [name, caption] : buttons) {
    QCOMPARE(child<QPushButton>(d.get(), name)->text(), QString::fromLatin1(caption));
  }
  QVERIFY(!child<QPushButton>(d.get(), "cmdFinish")->isEnabled());
  QCOMPARE(child<QRadioButton>(d.get(), "optPCAutomatic")->text(), QStringLiteral("Automatic"));
  QVERIFY(child<QRadioButton>(d.get(), "optPCAutomatic")->isChecked());
  QCOMPARE(child<QRadioButton>(d.get(), "optPCManual")->text(), QStringLiteral("Manual"));
  QCOMPARE(child<QListWidget>(d.get(), "lstTradeOffFirstC")->count(), 4);
  QCOMPARE(child<QListWidget>(d.get(), "lstTradeOffFirstC")->item(2)->text(),
           QStringLiteral("Att3"));
  verifyPair(d.get(), 0, 1);
  QCOMPARE(text(d.get(), "labPCThisNum"), QStringLiteral("1"));
  QCOMPARE(text(d.get(), "labPCNeccesaryNum"), QStringLiteral("12"));
  QCOMPARE(text(d.get(), "labPCCriterion1"), QStringLiteral("Att1"));
  QCOMPARE(text(d.get(), "labPCCriterion2"), QStringLiteral("Att2"));
  QCOMPARE(text(d.get(), "labPCWorstT"), QStringLiteral("(0, 0)"));
  QCOMPARE(text(d.get(), "labPCBestT"), QStringLiteral("(10, 10)"));
  const char* verbal[] = {"Strongly",
                          "Moderately",
                          "Slightly",
                          "Indifference",
                          "Slightly the opposite",
                          "Moderately the opposite",
                          "Strongly the opposite"};
  for (int i = 0; i < 7; ++i) {
    QCOMPARE(child<QRadioButton>(d.get(), QStringLiteral("optPCVerbal_%1").arg(i))->text(),
             QString::fromLatin1(verbal[i]));
  }
  for (const char* name : {"framePCGraph", "shpPCA", "shpPCB", "framePCNumericalC",
                           "framePCVerbalC", "labTradeOffDiff1", "labTradeOffDiff2", "labPCBestT",
                           "picWeightEst", "picRegStatus", "picWeightGraph"}) {
    QVERIFY2(d->findChild<QWidget*>(QString::fromLatin1(name)) != nullptr, name);
  }
  for (int i = 0; i < 4; ++i) {
    auto* bar = child<QToolBar>(d.get(), QStringLiteral("tbScoreChanger_%1").arg(i));
    QCOMPARE(child<QAction>(bar, "Up")->text(), QStringLiteral("Up"));
    QCOMPARE(child<QAction>(bar, "Down")->text(), QStringLiteral("Down"));
  }
  // The boxes show the scores the presenter drew, in the score format.
  const auto& boxes = d->presenter().judgmentPage().controls().scoreBoxes;
  QCOMPARE(text(d.get(), "txtTradeOffAFirstScore"), QString::fromStdString(boxes[0].text));
  QVERIFY(!boxes[0].text.empty());
}

void TradeOffsADialogTest::runFullTradeOffs(TradeOffsADialog* d) {
  // 1: typed scores on the pair (Att1, Att2).
  verifyPair(d, 0, 1);
  typeScores(d, "6", "2", "3", "7");
  enterTradeOff(d);
  QCOMPARE(text(d, "labPCThisNum"), QStringLiteral("2"));
  verifyPair(d, 1, 2);
  // 2: typed scores, then one step up on A's second score: a hundredth of the range 0..10.
  typeScores(d, "4", "8", "6", "5");
  auto* bar = child<QToolBar>(d, "tbScoreChanger_1");
  QTest::mouseClick(bar->widgetForAction(child<QAction>(bar, "Up")), Qt::LeftButton);
  QCOMPARE(text(d, "txtTradeOffASecondScore"), QStringLiteral("8.1"));
  enterTradeOff(d);
  verifyPair(d, 2, 0);
  // 3: point A dragged up and to the right; its two boxes follow the point.
  auto* a = child<PcPointWidget>(d, "shpPCA");
  const QPoint before = a->pos();
  const QString oldA1 = text(d, "txtTradeOffAFirstScore");
  const QPoint grab = a->rect().center();
  QTest::mousePress(a, Qt::LeftButton, {}, grab);
  QTest::mouseMove(a, grab + QPoint(25, -15));
  QTest::mouseRelease(a, Qt::LeftButton, {}, grab + QPoint(25, -15));
  QVERIFY(a->pos() != before);
  QVERIFY(text(d, "txtTradeOffAFirstScore") != oldA1);
  const PanelPoint& p = d->presenter().judgmentPage().controls().shpPCA;
  QVERIFY(p.x > 0.0 && p.x <= 1.0 && p.y > 0.0 && p.y <= 1.0);
  enterTradeOff(d);
  verifyPair(d, 0, 1);
  // 4: a verbal judgment, "Strongly" (A strongly preferred records -3).
  auto* tabs = child<QTabBar>(d, "tsComparisonApproaches");
  QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
  QVERIFY(child<QWidget>(d, "framePCVerbalC")->isVisible());
  typeScores(d, "8", "5", "2", "5");
  auto* strongly = child<QRadioButton>(d, "optPCVerbal_0");
  QTest::mouseClick(strongly, Qt::LeftButton, {}, QPoint(8, strongly->height() / 2));
  QVERIFY(strongly->isChecked());
  QTest::mouseClick(child<QPushButton>(d, "cmdTradeOffEnter"), Qt::LeftButton);
  QCOMPARE(d->presenter().judgmentPage().store().PrefResponse[3], std::int16_t{-3});
  QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
  QVERIFY(child<QWidget>(d, "framePCNumericalC")->isVisible());
  // 5 and 6: typed scores on (Att2, Att3) and (Att3, Att1).
  verifyPair(d, 1, 2);
  typeScores(d, "5", "2", "3", "5");
  enterTradeOff(d);
  verifyPair(d, 2, 0);
  typeScores(d, "2", "3", "7", "1");
  enterTradeOff(d);
  QCOMPARE(text(d, "labPCThisNum"), QStringLiteral("7"));
  QCOMPARE(d->presenter().judgmentPage().store().JudgmentCount, 6);
  QVERIFY(m_ui.messages().empty());
  // A seventh Enter meets the finished message and records nothing.
  QTest::mouseClick(child<QPushButton>(d, "cmdTradeOffEnter"), Qt::LeftButton);
  QCOMPARE(m_ui.messages().size(), std::size_t{1});
  QCOMPARE(m_ui.messages().back().text, std::string(JudgmentPage::kFinishedMessage));
  QCOMPARE(m_ui.messages().back().icon, MessageIcon::Information);
  QCOMPARE(m_ui.messages().back().title, std::string("NORIX"));
  QVERIFY(!child<QPushButton>(d, "cmdTradeOffEnter")->isEnabled());
  QCOMPARE(d->presenter().judgmentPage().store().JudgmentCount, 6);
}

void TradeOffsADialogTest::fullRunOfThreeAttributesExportsCloseEstimatesAsWeightsAndWeightsL() {
  auto d = open(3);
  QCOMPARE(text(d.get(), "labPCNeccesaryNum"), QStringLiteral("6"));
  runFullTradeOffs(d.get());
  if (QTest::currentTestFailed()) return;
  m_ui.clearMessages();

  clickButton(d.get(), "cmdNext");
  QVERIFY2(m_ui.messages().empty(), m_ui.messages().empty() ? "" : m_ui.messages()[0].text.c_str());
  QCOMPARE(child<QStackedWidget>(d.get(), "pages")->currentWidget()->objectName(),
           QStringLiteral("pageResults"));
  QVERIFY(child<QPushButton>(d.get(), "cmdFinish")->isEnabled());
  QVERIFY(!child<QPushButton>(d.get(), "cmdNext")->isEnabled());

  // The overall grid: six judgments, one of them verbal, so no observation is appended.
  auto* overall = child<QTableWidget>(d.get(), "gridOverallRegression");
  QCOMPARE(overall->horizontalHeaderItem(0)->text(), QStringLiteral("Items"));
  QCOMPARE(overall->horizontalHeaderItem(1)->text(), QStringLiteral("Values"));
  const char* items[] = {"Constant", "Std Err of Actual Est", "R Squared", "No of Obs.(Protoocl)",
                         "Degree of Freedom"};
  QCOMPARE(overall->rowCount(), 5);
  for (int r = 0; r < 5; ++r) QCOMPARE(overall->item(r, 0)->text(), QString::fromLatin1(items[r]));
  QCOMPARE(overall->item(0, 1)->text(), QStringLiteral("0"));
  const MultiRegressionData& record = d->presenter().record();
  QCOMPARE(overall->item(1, 1)->text(),
           QString::fromStdString(formatNumber(record.StdErrEst, "0.0000")));
  QCOMPARE(overall->item(2, 1)->text(),
           QString::fromStdString(formatNumber(record.RSquared, "0.0000")));
  QCOMPARE(overall->item(3, 1)->text(), QStringLiteral("6"));
  QCOMPARE(overall->item(4, 1)->text(), QStringLiteral("2"));

  // The weights grid: the close, high and low estimates of each attribute.
  auto* weights = child<QTableWidget>(d.get(), "gridWeights");
  const char* headings[] = {"Attributes", "Weights", "Est.High", "Est.Low"};
  for (int c = 0; c < 4; ++c) {
    QCOMPARE(weights->horizontalHeaderItem(c)->text(), QString::fromLatin1(headings[c]));
  }
  QCOMPARE(weights->rowCount(), 3);
  for (int r = 0; r < 3; ++r) {
    const auto i = static_cast<std::size_t>(r);
    QCOMPARE(weights->item(r, 0)->text(), QStringLiteral("Att%1").arg(r + 1));
    QCOMPARE(weights->item(r, 1)->text(), QString::fromStdString(formatNumber(
                                              d->presenter().weights().CloseWeights[i], "0.0000")));
    QCOMPARE(weights->item(r, 2)->text(), QString::fromStdString(formatNumber(
                                              d->presenter().weights().UpperWeights[i], "0.0000")));
    QCOMPARE(weights->item(r, 3)->text(), QString::fromStdString(formatNumber(
                                              d->presenter().weights().LowerWeights[i], "0.0000")));
  }
  QCOMPARE(child<QTextEdit>(d.get(), "txtComments")->toPlainText().toStdString(),
           d->presenter().resultsPage().txtComments().text);
  QVERIFY(child<QTextEdit>(d.get(), "txtComments")
              ->toPlainText()
              .startsWith(QStringLiteral("Consistency index is ")));

  // Each chart is drawn on the real surface in its own palette colours.
  const QImage bars = showChart(d.get(), "WeightBars");
  const QImage hlcA = showChart(d.get(), "HLCa");
  const QImage hlcB = showChart(d.get(), "HLCb");
  QCOMPARE(d->presenter().resultsPage().chartKey(), std::string("HLCb"));
  QVERIFY(countColour(bars, 9) > 4 * countColour(hlcA, 9));  // filled bars
  QVERIFY(countColour(hlcA, 13) > 0);                        // series 1 of chart A
  QCOMPARE(countColour(hlcB, 13), 0);                        // chart B has no magenta
  QVERIFY(countColour(hlcB, 10) > 0);                        // its series 2 is light green
  QVERIFY(countColour(hlcA, 12) > 0 && countColour(hlcB, 12) > 0);
  QVERIFY(countColour(bars, 0) > 0);  // axes and texts

  // The regression-status tab brings its panel to the front; coming back shows the chart drawn
  // before, without drawing it again.
  auto* chart = child<ChartWidget>(d.get(), "picWeightGraph");
  const int draws = chart->drawCount();
  auto* tabsW = child<QTabBar>(d.get(), "tsTabsW");
  QTest::mouseClick(tabsW, Qt::LeftButton, {}, tabsW->tabRect(1).center());
  QVERIFY(child<QWidget>(d.get(), "picRegStatus")->isVisible());
  QVERIFY(!child<QWidget>(d.get(), "picWeightEst")->isVisible());
  QTest::mouseClick(tabsW, Qt::LeftButton, {}, tabsW->tabRect(0).center());
  QCOMPARE(chart->grab().toImage(), hlcB);
  QCOMPARE(chart->drawCount(), draws);
  QTest::mouseClick(tabsW, Qt::LeftButton, {}, tabsW->tabRect(1).center());

  m_events.log.clear();
  clickButton(d.get(), "cmdFinish");
  QCOMPARE(m_events.log.size(), std::size_t{2});
  QCOMPARE(m_events.log[0], std::string("ExportTradeOffsW MAVT_TRADEOFFS"));
  QCOMPARE(m_events.log[1], std::string("UnloadTNWizard 3 true"));
  const auto& ex = m_events.exports.front();
  QCOMPARE(ex.weights, d->presenter().weights().CloseWeights);
  QCOMPARE(ex.weightsL, d->presenter().weights().CloseWeights);
  QCOMPARE(ex.weightsH, d->presenter().weights().UpperWeights);
  QVERIFY(ex.weightsL != d->presenter().weights().LowerWeights);
}

void TradeOffsADialogTest::scoreOutsideItsRangeShowsTheRangeInSinglePrecision() {
  m_context.model = makeModel(3);
  m_context.model.AttScoreHigh[0] = 10.0 / 3.0;
  auto d = std::make_unique<TradeOffsADialog>(m_context, m_ui, m_events, &m_random);
  d->showModal();
  QVERIFY(QTest::qWaitForWindowExposed(d.get()));
  typeScore(d.get(), "txtTradeOffAFirstScore", "5");
  QTest::keyClick(child<QLineEdit>(d.get(), "txtTradeOffAFirstScore"), Qt::Key_Return);
  QCOMPARE(m_ui.messages().size(), std::size_t{1});
  QCOMPARE(
      m_ui.messages()[0].text,
      std::string("The data you entered should be in the relevant score range [0, 3.333333]!"));
  QCOMPARE(m_ui.messages()[0].icon, MessageIcon::Exclamation);
  QCOMPARE(m_ui.messages()[0].title, std::string("NORIX"));
  QVERIFY(m_ui.beeps() > 0);
  auto* box = child<QLineEdit>(d.get(), "txtTradeOffAFirstScore");
  QVERIFY(box->hasFocus());
  QCOMPARE(box->selectedText(), QStringLiteral("5"));
  // The Enter button meets the same check and records nothing.
  QTest::mouseClick(child<QPushButton>(d.get(), "cmdTradeOffEnter"), Qt::LeftButton);
  QCOMPARE(m_ui.messages().size(), std::size_t{2});
  QCOMPARE(text(d.get(), "labPCThisNum"), QStringLiteral("1"));
  QVERIFY(box->hasFocus());
}

void TradeOffsADialogTest::keyFilterDiscardsLettersAndSigns() {
  auto d = open(3);
  typeScore(d.get(), "txtTradeOffBFirstScore", "a-1x2 ");
  QCOMPARE(text(d.get(), "txtTradeOffBFirstScore"), QStringLiteral("12"));
  QVERIFY(m_ui.messages().empty());
}

void TradeOffsADialogTest::sameAttributeInBothListsIsRefusedWithEachListsWording() {
  auto d = open(3);
  QTest::mouseClick(child<QRadioButton>(d.get(), "optPCManual"), Qt::LeftButton);
  auto* first = child<QListWidget>(d.get(), "lstTradeOffFirstC");
  auto* second = child<QListWidget>(d.get(), "lstTradeOffSecondC");
  QVERIFY(first->isEnabled());
  QTest::mouseClick(first->viewport(), Qt::LeftButton, {},
                    first->visualItemRect(first->item(1)).center());
  QCOMPARE(m_ui.messages().at(0).text,
           std::string("Please choose different criteria to make pairwise comparisons!"));
  QCOMPARE(first->currentRow(), 0);
  QTest::mouseClick(second->viewport(), Qt::LeftButton, {},
                    second->visualItemRect(second->item(0)).center());
  QCOMPARE(m_ui.messages().at(1).text,
           std::string("Please choose different attributes to compare!"));
  QCOMPARE(second->currentRow(), 1);
  // A valid choice relabels the panel.
  QTest::mouseClick(second->viewport(), Qt::LeftButton, {},
                    second->visualItemRect(second->item(2)).center());
  QCOMPARE(text(d.get(), "labPCCriterion2"), QStringLiteral("Att3"));
  QCOMPARE(m_ui.messages().size(), std::size_t{2});
}

// The score boxes are read out with their alternative and the attribute of their column, also
// after another pair of attributes is chosen.
void TradeOffsADialogTest::scoreBoxesAreNamedAfterTheAttributesShown() {
  auto d = open(3);
  const auto named = [&d](const char* box, const char* alternative, const char* head) {
    const QString attribute = text(d.get(), head).trimmed();
    QVERIFY(!attribute.isEmpty());
    QCOMPARE(child<QLineEdit>(d.get(), box)->accessibleName(),
             QStringLiteral("%1, %2").arg(QLatin1String(alternative), attribute));
  };
  named("txtTradeOffAFirstScore", "A", "labScoreHead1");
  named("txtTradeOffBSecondScore", "B", "labScoreHead2");
  const QString before = text(d.get(), "labScoreHead2");
  QTest::mouseClick(child<QRadioButton>(d.get(), "optPCManual"), Qt::LeftButton);
  auto* second = child<QListWidget>(d.get(), "lstTradeOffSecondC");
  QTest::mouseClick(second->viewport(), Qt::LeftButton, {},
                    second->visualItemRect(second->item(2)).center());
  QVERIFY(text(d.get(), "labScoreHead2") != before);
  named("txtTradeOffASecondScore", "A", "labScoreHead2");
  named("txtTradeOffBSecondScore", "B", "labScoreHead2");
  named("txtTradeOffBFirstScore", "B", "labScoreHead1");
}

void TradeOffsADialogTest::twoAttributeModelReachesTheDefinedOutcomeWithoutExport() {
  auto d = open(2);
  QCOMPARE(text(d.get(), "labPCNeccesaryNum"), QStringLiteral("2"));
  typeScores(d.get(), "6", "2", "3", "7");
  enterTradeOff(d.get());
  typeScores(d.get(), "4", "8", "6", "5");
  enterTradeOff(d.get());
  QVERIFY(m_ui.messages().empty());
  // Two numerical judgments and the appended observation: N - K - 1 = 3 - 2 - 1 = 0.
  clickButton(d.get(), "cmdNext");
  QVERIFY(d->presenter().fitError().has_value());
  QVERIFY(!m_ui.messages().empty());
  QCOMPARE(m_ui.messages().back().text, *d->presenter().fitError());
  QCOMPARE(m_ui.messages().back().title, std::string("NORIX"));
  QCOMPARE(m_ui.messages().back().icon, MessageIcon::Exclamation);
  auto* weights = child<QTableWidget>(d.get(), "gridWeights");
  for (int r = 0; r < weights->rowCount(); ++r) {
    for (int c = 1; c < 4; ++c) {
      const QString cell = weights->item(r, c)->text().toLower();
      QVERIFY2(!cell.contains(QStringLiteral("nan")) && !cell.contains(QStringLiteral("inf")),
               qPrintable(cell));
    }
  }
  showChart(d.get(), "WeightBars");
  showChart(d.get(), "HLCb");
  m_events.log.clear();
  clickButton(d.get(), "cmdFinish");
  QVERIFY(m_events.exports.empty());
  QVERIFY(m_events.log.empty());
  QVERIFY(d->isVisible());
}

void TradeOffsADialogTest::cancelOnEitherPageUnloadsWithoutExport() {
  auto d = open(3);
  m_events.log.clear();
  clickButton(d.get(), "cmdCancel");
  QCOMPARE(m_events.log, std::vector<std::string>{"UnloadTNWizard 3 false"});
  clickButton(d.get(), "cmdNext");
  m_events.log.clear();
  clickButton(d.get(), "cmdCancel");
  QCOMPARE(m_events.log, std::vector<std::string>{"UnloadTNWizard 3 false"});
  m_events.log.clear();
  QTest::keyClick(d.get(), Qt::Key_Escape);
  QCOMPARE(m_events.log, std::vector<std::string>{"UnloadTNWizard 3 false"});
  QVERIFY(m_events.exports.empty());
}

void TradeOffsADialogTest::backOnTheResultsPageStartsTheTradeOffsAgain() {
  auto d = open(3);
  typeScores(d.get(), "6", "2", "3", "7");
  enterTradeOff(d.get());
  QCOMPARE(text(d.get(), "labPCThisNum"), QStringLiteral("2"));
  clickButton(d.get(), "cmdNext");
  m_ui.clearMessages();
  clickButton(d.get(), "cmdBack");
  QCOMPARE(child<QStackedWidget>(d.get(), "pages")->currentWidget()->objectName(),
           QStringLiteral("pageJudgment"));
  QCOMPARE(text(d.get(), "labPCThisNum"), QStringLiteral("1"));
  verifyPair(d.get(), 0, 1);
  QVERIFY(child<QPushButton>(d.get(), "cmdNext")->isEnabled());
  QVERIFY(child<QPushButton>(d.get(), "cmdTradeOffEnter")->isEnabled());
  // Back on the judgment page returns to method selection.
  m_events.log.clear();
  clickButton(d.get(), "cmdBack");
  QCOMPARE(m_events.log, std::vector<std::string>{"ShowTNWSelMethod"});
}

void TradeOffsADialogTest::helpOpensTheHostsHelpFileAtTheWizardTopic() {
  auto d = open(3);
  clickButton(d.get(), "cmdTNWizardHelp");
  QCOMPARE(m_ui.helpFile(), std::string("C:\\NORIX\\NORIX.HLP"));
  QCOMPARE(m_ui.helpContext(), 4005025);
  // The help names the page it was pressed on, for viewers with a page per step.
  QCOMPARE(m_ui.helpTopic().page, std::string("tradeoffs_a"));
  QCOMPARE(m_ui.helpTopic().anchor, std::string("judgment"));
  typeScores(d.get(), "6", "2", "3", "7");
  enterTradeOff(d.get());
  clickButton(d.get(), "cmdNext");
  QCOMPARE(child<QStackedWidget>(d.get(), "pages")->currentWidget()->objectName(),
           QStringLiteral("pageResults"));
  clickButton(d.get(), "cmdTNWizardHelp");
  QCOMPARE(m_ui.helpTopic().page, std::string("tradeoffs_a"));
  QCOMPARE(m_ui.helpTopic().anchor, std::string("results"));
  QCOMPARE(m_ui.helpContext(), 4005025);
}

void TradeOffsADialogTest::dragCursorsComeFromTheHostsIconsWhenPresent() {
  QTemporaryDir dir;
  QVERIFY(dir.isValid());
  QImage icon(32, 32, QImage::Format_ARGB32);
  icon.fill(QColor(0, 128, 0));
  QVERIFY(icon.save(dir.filePath(QStringLiteral("adrag.ico")), "ICO"));
  m_context.NorixDir = dir.path().toStdString();
  auto d = open(3);
  const QImage a = child<PcPointWidget>(d.get(), "shpPCA")->dragCursor().pixmap().toImage();
  QCOMPARE(a.size(), QSize(32, 32));
  QCOMPARE(a.pixelColor(5, 5), QColor(0, 128, 0));
  // Without "bdrag.ico" point B gets the drawn cursor.
  const QImage b = child<PcPointWidget>(d.get(), "shpPCB")->dragCursor().pixmap().toImage();
  QVERIFY(!b.isNull());
  QVERIFY(b.pixelColor(5, 5) != QColor(0, 128, 0));
}

// Counts the enabled-state changes of the widget it watches.
class EnabledChangeCounter : public QObject {
 public:
  int count = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::EnabledChange) ++count;
    return QObject::eventFilter(watched, event);
  }
};

void TradeOffsADialogTest::judgmentsLeaveThePrintButtonAsItIs() {
  // Print stays disabled on the judgment page: a judgment does not switch it on and off again
  // (each switch repaints it).
  auto d = open(3);
  auto* print = child<QPushButton>(d.get(), "cmdPrint");
  EnabledChangeCounter changes;
  print->installEventFilter(&changes);
  enterTradeOff(d.get());
  enterTradeOff(d.get());
  print->removeEventFilter(&changes);
  QCOMPARE(changes.count, 0);
  QVERIFY(!print->isEnabled());
}

void TradeOffsADialogTest::printWritesTheResultsPageAsVectorPdf() {
  auto d = open(3);
  runFullTradeOffs(d.get());
  if (QTest::currentTestFailed()) return;
  QVERIFY(!child<QPushButton>(d.get(), "cmdPrint")->isEnabled());
  clickButton(d.get(), "cmdNext");
  QVERIFY(child<QPushButton>(d.get(), "cmdPrint")->isEnabled());
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("results.pdf"));
  {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    d->printResults(printer);
  }
  QFile file(path);
  QVERIFY(file.open(QIODevice::ReadOnly));
  const QByteArray pdf = file.readAll();
  QVERIFY(pdf.startsWith("%PDF"));
  QVERIFY(pdf.size() > 2000);
  // Texts and lines are vectors: the print-out holds fonts and no bitmap.
  QVERIFY(pdf.contains("/Font"));
  QVERIFY(!pdf.contains("/Subtype /Image"));
}

void TradeOffsADialogTest::tabOrderFollowsTheLayout() {
  auto d = open(3);
  QApplication::setActiveWindow(d.get());
  child<QRadioButton>(d.get(), "optPCAutomatic")->setFocus();
  QStringList chain;
  for (int i = 0; i < 23; ++i) {
    chain << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  // The lists are disabled in automatic mode, and Print and Finish on this page. The points A
  // and B and each score box's Up and Down buttons are stops of their own.
  const QStringList expected = {"optPCAutomatic",
                                "tsComparisonApproaches",
                                "shpPCA",
                                "shpPCB",
                                "txtTradeOffAFirstScore",
                                "Up",
                                "Down",
                                "txtTradeOffASecondScore",
                                "Up",
                                "Down",
                                "txtTradeOffBFirstScore",
                                "Up",
                                "Down",
                                "txtTradeOffBSecondScore",
                                "Up",
                                "Down",
                                "cmdTradeOffClearAll",
                                "cmdTradeOffEnter",
                                "cmdBack",
                                "cmdNext",
                                "cmdCancel",
                                "cmdTNWizardHelp",
                                "optPCAutomatic"};
  QCOMPARE(chain, expected);
  // In manual mode the lists follow the options.
  QTest::mouseClick(child<QRadioButton>(d.get(), "optPCManual"), Qt::LeftButton);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("lstTradeOffFirstC"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("lstTradeOffSecondC"));
}

// The mnemonic letters of the visible, enabled buttons and buddied labels of a dialog.
static QStringList mnemonics(QWidget* d) {
  QStringList keys;
  const auto add = [&keys](const QString& text) {
    const qsizetype at = text.indexOf(QLatin1Char('&'));
    if (at >= 0 && at + 1 < text.size()) keys << text.mid(at + 1, 1).toLower();
  };
  for (auto* b : d->findChildren<QAbstractButton*>()) {
    if (b->isVisible() && b->isEnabled()) add(b->text());
  }
  for (auto* l : d->findChildren<QLabel*>()) {
    if (l->isVisible() && l->buddy() != nullptr && l->buddy()->isEnabled()) add(l->text());
  }
  return keys;
}

void TradeOffsADialogTest::mnemonicsAreUniqueOnEachPage() {
  auto d = open(3);
  QTest::mouseClick(child<QRadioButton>(d.get(), "optPCManual"), Qt::LeftButton);
  QStringList keys = mnemonics(d.get());
  // Alt+R reaches the first list ("The fi&rst:"), Alt+F is kept for Finish.
  QVERIFY(keys.contains(QStringLiteral("r")) && keys.contains(QStringLiteral("e")));
  QCOMPARE(keys.size(), QSet<QString>(keys.begin(), keys.end()).size());
  clickButton(d.get(), "cmdNext");
  keys = mnemonics(d.get());
  QVERIFY(keys.contains(QStringLiteral("p")) && keys.contains(QStringLiteral("f")));
  QCOMPARE(keys.size(), QSet<QString>(keys.begin(), keys.end()).size());
}

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::TradeOffsADialogTest)
#include "trade_offs_a_dialog_test.moc"
