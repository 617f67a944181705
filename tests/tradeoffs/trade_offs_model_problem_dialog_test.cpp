// The trade-off dialog on a model it cannot weigh: the message on opening, Enter, Next and Finish
// disabled, and no export however the user clicks.

#include "trade_off_dialog_fixture.h"

// Std
#include <functional>
#include <limits>

namespace tnw::tradeoffs {

using namespace tnw::testing;

class TradeOffsModelProblemDialogTest : public QObject {
  Q_OBJECT

 private:
  // Opens the dialog on a three-attribute model after change, tries every way to an export and
  // checks that the one message shown is `message` and that nothing was exported.
  void expectRefused(const std::function<void(AttributeModel&)>& change,
                     const std::string& message) {
    WizardContext context;
    context.FileIndex = 3;
    context.model = makeModel(3);
    context.model.AttName[1] = "Att2";
    change(context.model);
    RecordingUiServices ui;
    RecordingTradeOffsEvents events;
    SequenceRandomSource random{{0.2f, 0.7f}};
    auto d = std::make_unique<TradeOffsADialog>(context, ui, events, &random);
    d->showModal();
    QVERIFY(QTest::qWaitForWindowExposed(d.get()));
    QCOMPARE(ui.messages().size(), std::size_t{1});
    QCOMPARE(ui.messages().front().text, message);
    QCOMPARE(ui.messages().front().title, std::string("NORIX"));
    QVERIFY(!child<QPushButton>(d.get(), "cmdTradeOffEnter")->isEnabled());
    QVERIFY(!child<QPushButton>(d.get(), "cmdNext")->isEnabled());
    QVERIFY(!child<QPushButton>(d.get(), "cmdFinish")->isEnabled());
    typeScores(d.get(), "6", "2", "3", "7");
    clickButton(d.get(), "cmdTradeOffEnter");
    clickButton(d.get(), "cmdTradeOffClearAll");
    QVERIFY(!child<QPushButton>(d.get(), "cmdTradeOffEnter")->isEnabled());
    clickButton(d.get(), "cmdNext");
    clickButton(d.get(), "cmdFinish");
    QCOMPARE(d->presenter().step(), TradeOffsAPresenter::kJudgmentStep);
    QVERIFY(events.exports.empty());
    for (const std::string& e : events.log) QVERIFY2(e.rfind("UnloadTNWizard", 0) != 0, e.c_str());
    clickButton(d.get(), "cmdCancel");
    QCOMPARE(events.log.back(), std::string("UnloadTNWizard 3 false"));
  }

 private slots:
  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }

  void moreThanThirtyOneAttributes() {
    expectRefused([](AttributeModel& m) { m.NumAtt = 32; },
                  "The current model has 32 attributes. The wizard can only weigh from 1 to 31 "
                  "attributes.");
  }

  void noAttributes() {
    expectRefused([](AttributeModel& m) { m.NumAtt = 0; },
                  "The current model has 0 attributes. The wizard can only weigh from 1 to 31 "
                  "attributes.");
  }

  void pointsAboveEleven() {
    expectRefused([](AttributeModel& m) { m.NumPoints[1] = 12; },
                  "The value function of the attribute \"Att2\" has more than 11 points.");
  }

  void aRangeEndThatIsNotANumber() {
    expectRefused(
        [](AttributeModel& m) { m.AttScoreHigh[1] = std::numeric_limits<double>::quiet_NaN(); },
        "The score range of the attribute \"Att2\" has an end that is not a number the wizard "
        "can use.");
  }

  void anInfinitePoint() {
    expectRefused(
        [](AttributeModel& m) { m.PointScore[1][0] = std::numeric_limits<double>::infinity(); },
        "The value function of the attribute \"Att2\" cannot be evaluated: point 1 holds a "
        "number the wizard cannot use.");
  }
};

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::TradeOffsModelProblemDialogTest)
#include "trade_offs_model_problem_dialog_test.moc"
