// Makes the README's pictures of the trade-off dialog: it runs the method on a small car-purchase
// model through the real widgets and saves both pages (the judgment page also with a judgment
// undone), the three charts and a PDF print-out.
// Usage: trade_offs_screenshots OUTPUT_DIR

#include "common/core/number_format.h"
#include "graphs/ui/chart_widget.h"
#include "model/value_function.h"
#include "model_json/judgment_files.h"
#include "trade_off_dialog_fixture.h"
#include "tradeoffs/ui/tradeoffs_results_widget.h"

// Qt
#include <QAction>
#include <QDir>
#include <QPrinter>
#include <QRadioButton>
#include <QTabBar>
#include <QToolBar>

// Std
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace tnw::tradeoffs {
namespace {

using namespace tnw::testing;

// Four attributes of a car; price and fuel consumption are better when lower.
AttributeModel carModel() {
  struct Att {
    const char* name;
    double low;
    double high;
    bool cost;
  };
  const Att atts[] = {{"Price (EUR)", 15000, 40000, true},
                      {"Comfort", 0, 100, false},
                      {"Fuel consumption", 4, 12, true},
                      {"Safety", 0, 50, false}};
  AttributeModel m;
  m.NumAtt = 4;
  for (std::size_t a = 0; a < 4; ++a) {
    m.AttName[a] = atts[a].name;
    m.AttOrientation[a] = atts[a].cost ? "Cost" : "Benefit";
    m.AttScoreLow[a] = atts[a].low;
    m.AttScoreHigh[a] = atts[a].high;
    m.NumPoints[a] = 2;
    m.PointScore[a][0] = atts[a].low;
    m.PointScore[a][1] = atts[a].high;
    m.PointValue[a][0] = atts[a].cost ? 1.0 : 0.0;
    m.PointValue[a][1] = atts[a].cost ? 0.0 : 1.0;
  }
  return m;
}

// A fixed sequence of uniform draws in [0, 1), enough for every trade-off of the run: were the
// draws to run out, A and B would get equal scores and the judgment would tell the fit nothing.
std::vector<float> draws(int count) {
  std::vector<float> out;
  std::uint32_t state = 20240611u;
  for (int i = 0; i < count; ++i) {
    state = state * 1664525u + 1013904223u;
    out.push_back(static_cast<float>(state >> 8) / 16777216.0f);
  }
  return out;
}

bool save(QWidget* w, const QDir& dir, const char* file) {
  QApplication::processEvents();
  const QString path = dir.filePath(QString::fromLatin1(file));
  const bool ok = w->grab().save(path);
  std::printf("%s %s\n", ok ? "wrote" : "could not write", qPrintable(path));
  return ok;
}

// Types B's second score so that a decision maker with the given weights, judging the ratio of
// the two weights off by `error`, is indifferent.
void makeIndifferent(TradeOffsADialog& d, const WizardContext& c, const double weights[4],
                     double error) {
  const JudgmentPage& page = d.presenter().judgmentPage();
  const int f = page.FirstAttIndex();
  const int s = page.SecondAttIndex();
  const auto& boxes = page.controls().scoreBoxes;
  const auto value = [&c](int att, const std::string& text) {
    const AttValueResult r = SingleAttValue(c.model, att, leadingNumber(text));
    return r.value ? r.value->toDouble() : 0.0;
  };
  const double vA1 = value(f, boxes[0].text);
  const double vB1 = value(f, boxes[2].text);
  const double vA2 = value(s, boxes[1].text);
  const double vB2 = std::clamp(vA2 + error * weights[f] / weights[s] * (vA1 - vB1), 0.0, 1.0);
  const auto a = static_cast<std::size_t>(s);
  const double low = c.model.AttScoreLow[a];
  const double high = c.model.AttScoreHigh[a];
  const bool cost = c.model.PointValue[a][0].value_or(0.0) > 0.5;
  const double score = cost ? high - vB2 * (high - low) : low + vB2 * (high - low);
  typeScore(&d, "txtTradeOffBSecondScore", std::to_string(std::lround(score)).c_str());
}

// The judgment page as the component shows it, with Save and Load of the judgments, after three
// judgments.
bool savedJudgmentsShot(const QDir& dir) {
  WizardContext context;
  context.model = carModel();
  RecordingUiServices ui;
  testing::NullTradeOffsEvents events;
  SequenceRandomSource random(draws(100));
  const JsonJudgmentsFile file;
  TradeOffsADialog d(context, ui, events, &random, &file);
  d.resize(d.sizeHint().expandedTo(QSize(860, 600)));
  d.show();
  if (!QTest::qWaitForWindowExposed(&d)) return false;
  const double weights[4] = {0.4, 0.2, 0.15, 0.25};
  const double errors[3] = {1.2, 0.8, 1.5};
  for (const double error : errors) {
    makeIndifferent(d, context, weights, error);
    clickButton(&d, "cmdTradeOffEnter");
  }
  return save(&d, dir, "tradeoffs-saved-judgments.png");
}

int run(const QDir& dir) {
  if (!savedJudgmentsShot(dir)) return 1;
  WizardContext context;
  context.model = carModel();
  RecordingUiServices ui;
  testing::NullTradeOffsEvents events;
  SequenceRandomSource random(draws(100));
  TradeOffsADialog d(context, ui, events, &random);
  d.resize(d.sizeHint().expandedTo(QSize(860, 600)));
  d.show();
  if (!QTest::qWaitForWindowExposed(&d)) return 1;
  bool ok = save(&d, dir, "tradeoffs-judgment.png");
  auto* tabs = d.findChild<QTabBar*>(QStringLiteral("tsComparisonApproaches"));
  tabs->setCurrentIndex(1);
  d.findChild<QRadioButton*>(QStringLiteral("optPCVerbal_1"))->click();
  ok = save(&d, dir, "tradeoffs-verbal.png") && ok;
  d.findChild<QRadioButton*>(QStringLiteral("optPCVerbal_3"))->click();
  tabs->setCurrentIndex(0);

  const double weights[4] = {0.4, 0.2, 0.15, 0.25};
  auto* enter = d.findChild<QPushButton*>(QStringLiteral("cmdTradeOffEnter"));
  // Real judgments are not consistent: each of the four neighbouring pairs comes three times,
  // and the decision maker's trade-off ratio is off by up to a factor of three, now one way and
  // now the other. The fit leaves residuals, and the estimates get visible ranges.
  const double errors[12] = {1.2, 0.8, 1.5, 0.7, 3.0, 0.4, 2.5, 0.35, 0.4, 2.8, 0.33, 3.0};
  for (int i = 0; i < 12 && enter->isEnabled(); ++i) {
    makeIndifferent(d, context, weights, errors[i]);
    enter->click();
  }
  // The last judgment taken back, so that both Undo and Redo are enabled; Redo makes it again.
  clickButton(&d, "cmdUndo");
  ok = save(&d, dir, "tradeoffs-undo.png") && ok;
  clickButton(&d, "cmdRedo");
  clickButton(&d, "cmdNext");
  const auto& c = d.resultsPage()->controls();
  ok = save(&d, dir, "tradeoffs-results.png") && ok;
  const char* charts[3][2] = {{"WeightBars", "chart-weightbars.png"},
                              {"HLCa", "chart-hlca.png"},
                              {"HLCb", "chart-hlcb.png"}};
  for (const auto& [key, file] : charts) {
    c.tbWeightCharts->findChild<QAction*>(QString::fromLatin1(key))->trigger();
    ok = save(c.picWeightGraph, dir, file) && ok;
  }
  c.tbWeightCharts->findChild<QAction*>(QStringLiteral("HLCa"))->trigger();
  c.tsTabsW->setCurrentIndex(1);
  ok = save(&d, dir, "tradeoffs-regression.png") && ok;
  c.tsTabsW->setCurrentIndex(0);

  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(dir.filePath(QStringLiteral("tradeoffs-printout.pdf")));
  d.printResults(printer);
  std::printf("wrote %s\n", qPrintable(printer.outputFileName()));
  return ok ? 0 : 1;
}

}  // namespace
}  // namespace tnw::tradeoffs

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  if (argc != 2) {
    std::fputs("usage: trade_offs_screenshots OUTPUT_DIR\n", stderr);
    return 1;
  }
  const QDir dir(QString::fromLocal8Bit(argv[1]));
  if (!dir.exists()) return 1;
  return tnw::tradeoffs::run(dir);
}
