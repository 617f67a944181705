#include "selmethod/ui/selmethod_dialog.h"

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"

// Qt
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

// Std
#include <memory>
#include <string>
#include <vector>

namespace tnw::selmethod {
namespace {

// Records the dialog's events as text.
class RecordingEvents : public SelMethodEvents {
 public:
  void ShowTNWDirect() override { log.push_back("ShowTNWDirect"); }
  void ShowTNWTradeOffsA() override { log.push_back("ShowTNWTradeOffsA"); }
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    log.push_back("UnloadTNWizard " + std::to_string(fIndex) + (WeightsDone ? " true" : " false"));
  }
  void SendMasseges(const std::string& Msg) override { log.push_back("SendMasseges " + Msg); }

  std::vector<std::string> log;
};

}  // namespace

class SelMethodDialogTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<SelMethodDialog> open(const std::string& prevTNType) {
    m_context.model.PrevTNType = prevTNType;
    auto dialog = std::make_unique<SelMethodDialog>(m_context, m_ui, m_events);
    dialog->showModeless();
    [&] {
      QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
      QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    }();
    return dialog;
  }
  template <typename T>
  static T* child(QWidget* dialog, const char* name) {
    T* w = dialog->findChild<T*>(QString::fromUtf8(name));
    if (w == nullptr) qFatal("no control named %s", name);
    return w;
  }
  QStringList log() const {
    QStringList out;
    for (const std::string& s : m_events.log) out << QString::fromStdString(s);
    return out;
  }

  WizardContext m_context;
  RecordingUiServices m_ui;
  RecordingEvents m_events;

 private slots:
  void init() {
    m_context = WizardContext{};
    m_context.FileIndex = 4;
    m_context.NorixDir = "C:\\NORIX";
    m_events.log.clear();
  }

  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }

  void showsEveryControlWithItsCaption() {
    auto d = open("");
    QCOMPARE(d->objectName(), QStringLiteral("frmTNWSelMethod"));
    QCOMPARE(d->windowTitle(), QStringLiteral("Tarnel Wizard"));
    const QList<QLabel*> label1 = d->findChildren<QLabel*>(QStringLiteral("Label1"));
    QCOMPARE(label1.size(), 2);
    QCOMPARE(label1[0]->text(), QStringLiteral("Elicitation methods:"));
    QCOMPARE(label1[1]->text(), QStringLiteral("Description:"));
    auto* list = child<QListWidget>(d.get(), "lstMethods");
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->item(0)->text(), QStringLiteral("Direct"));
    QCOMPARE(list->item(1)->text(), QStringLiteral("TradeOffs"));
    QVERIFY(d->findChild<QFrame*>(QStringLiteral("picDescription")) != nullptr);
    QVERIFY(d->findChild<QFrame*>(QStringLiteral("Frame1")) != nullptr);
    QCOMPARE(child<QPushButton>(d.get(), "cmdBack")->text(), QStringLiteral("< &Back"));
    QCOMPARE(child<QPushButton>(d.get(), "cmdNext")->text(), QStringLiteral("&Next >"));
    QCOMPARE(child<QPushButton>(d.get(), "cmdFinish")->text(), QStringLiteral("&Finish"));
    QCOMPARE(child<QPushButton>(d.get(), "cmdCancel")->text(), QStringLiteral("&Cancel"));
    QCOMPARE(child<QPushButton>(d.get(), "cmdHelp")->text(), QStringLiteral("&Help"));
  }

  void loadingDisablesBackAndFinishAndSendsTheStatusText() {
    auto d = open("");
    QVERIFY(!child<QPushButton>(d.get(), "cmdBack")->isEnabled());
    QVERIFY(!child<QPushButton>(d.get(), "cmdFinish")->isEnabled());
    QVERIFY(child<QPushButton>(d.get(), "cmdNext")->isEnabled());
    QCOMPARE(log(), QStringList{QStringLiteral(
                        "SendMasseges Select a method to make value judgments between the "
                        "attributes.")});
  }

  void emptyEarlierResultPreselectsDirect() {
    auto d = open("");
    QCOMPARE(child<QListWidget>(d.get(), "lstMethods")->currentRow(), 0);
    QCOMPARE(child<QLabel>(d.get(), "lblSelectedMethodName")->text(), QStringLiteral("Direct:"));
    QCOMPARE(child<QLabel>(d.get(), "lblDescription")->text(),
             QStringLiteral("Give attribute weights directly"));
  }

  void tradeOffsEarlierResultPreselectsTradeOffsDescribedAsRating() {
    auto d = open("MAVT_TRADEOFFS");
    auto* list = child<QListWidget>(d.get(), "lstMethods");
    QCOMPARE(list->currentRow(), 1);
    QVERIFY(list->item(1)->isSelected());
    QCOMPARE(child<QLabel>(d.get(), "lblSelectedMethodName")->text(), QStringLiteral("MAVT:"));
    QCOMPARE(
        child<QLabel>(d.get(), "lblDescription")->text(),
        QStringLiteral("Elict attribute weights by Simple Multiple Attribute Rating Technique"));
  }

  void lowerCaseTradeOffsPreselectsDirect() {
    auto d = open("mavt_tradeoffs");
    QCOMPARE(child<QListWidget>(d.get(), "lstMethods")->currentRow(), 0);
  }

  void nextWithDirectAsksForTheDirectMethod() {
    auto d = open("");
    m_events.log.clear();
    QTest::mouseClick(child<QPushButton>(d.get(), "cmdNext"), Qt::LeftButton);
    QCOMPARE(log(), QStringList{QStringLiteral("ShowTNWDirect")});
  }

  void clickingTradeOffsThenNextAsksForTheTradeOffMethod() {
    auto d = open("");
    auto* list = child<QListWidget>(d.get(), "lstMethods");
    const QRect item = list->visualItemRect(list->item(1));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, item.center());
    QCOMPARE(child<QLabel>(d.get(), "lblSelectedMethodName")->text(), QStringLiteral("Direct:"));
    m_events.log.clear();
    QTest::mouseClick(child<QPushButton>(d.get(), "cmdNext"), Qt::LeftButton);
    QCOMPARE(log(), QStringList{QStringLiteral("ShowTNWTradeOffsA")});
  }

  void keyboardChoosesTheMethodAndEnterPressesNext() {
    auto d = open("");
    auto* list = child<QListWidget>(d.get(), "lstMethods");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    m_events.log.clear();
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(log(), QStringList{QStringLiteral("ShowTNWTradeOffsA")});
  }

  void mnemonicAltNPressesNext() {
    auto d = open("");
    m_events.log.clear();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::AltModifier);
    // A mnemonic animates the click, which lands a moment later.
    QTRY_COMPARE(log(), QStringList{QStringLiteral("ShowTNWDirect")});
  }

  void nextWithNoSelectionDoesNothing() {
    auto d = open("");
    auto* list = child<QListWidget>(d.get(), "lstMethods");
    const QRect item = list->visualItemRect(list->item(0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, item.center());
    QVERIFY(list->selectedItems().isEmpty());
    m_events.log.clear();
    QTest::mouseClick(child<QPushButton>(d.get(), "cmdNext"), Qt::LeftButton);
    QVERIFY(m_events.log.empty());
    QVERIFY(d->isVisible());
  }

  void cancelAsksTheHostToEndAndTheDialogStays() {
    auto d = open("");
    m_events.log.clear();
    QTest::mouseClick(child<QPushButton>(d.get(), "cmdCancel"), Qt::LeftButton);
    QCOMPARE(log(), QStringList{QStringLiteral("UnloadTNWizard 4 false")});
    QVERIFY(d->isVisible());
  }

  void closeBoxAndEscapeAreCancel() {
    auto d = open("");
    m_events.log.clear();
    d->close();
    QTest::keyClick(d.get(), Qt::Key_Escape);
    QCOMPARE(log(), (QStringList{QStringLiteral("UnloadTNWizard 4 false"),
                                 QStringLiteral("UnloadTNWizard 4 false")}));
    QVERIFY(d->isVisible());
  }

  void helpOpensNorixHlpAtItsTopic() {
    auto d = open("");
    QTest::mouseClick(child<QPushButton>(d.get(), "cmdHelp"), Qt::LeftButton);
    QCOMPARE(QString::fromStdString(m_ui.helpFile()), QStringLiteral("C:\\NORIX\\NORIX.HLP"));
    QCOMPARE(m_ui.helpContext(), 4005025);
  }

  void tabOrderRunsFromTheListThroughTheButtons() {
    auto d = open("");
    QStringList order;
    QWidget* w = child<QListWidget>(d.get(), "lstMethods");
    for (int i = 0; i < 6; ++i) {
      order << w->objectName();
      w = w->nextInFocusChain();
      while (w->focusPolicy() == Qt::NoFocus || !w->isEnabled()) w = w->nextInFocusChain();
    }
    QCOMPARE(order, (QStringList{"lstMethods", "cmdNext", "cmdCancel", "cmdHelp", "lstMethods",
                                 "cmdNext"}));
  }

  void noTextIsClippedWithTheLongestDescription() {
    m_context.model.PrevTNType = "";
    auto d = open("");
    // The longest description the dialog knows must fit as well as the loaded one.
    auto* desc = child<QLabel>(d.get(), "lblDescription");
    desc->setText(QStringLiteral(
        "Elict attribute weights by numerical trade-off between two random alternatives. The "
        "weights will be infered by multi-linear regression."));
    for (QLabel* label : d->findChildren<QLabel*>()) {
      const int needed =
          label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
      QVERIFY2(label->height() >= needed, qPrintable(label->objectName()));
      if (!label->wordWrap()) {
        QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->objectName()));
      }
    }
    for (QPushButton* button : d->findChildren<QPushButton*>()) {
      QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->objectName()));
    }
    const QList<QWidget*> controls = d->findChildren<QWidget*>();
    for (QWidget* a : controls) {
      for (QWidget* b : controls) {
        if (a == b || a->parentWidget() != b->parentWidget() || !a->isVisible() ||
            !b->isVisible() || a->objectName().isEmpty() || b->objectName().isEmpty())
          continue;
        QVERIFY2(!a->geometry().intersects(b->geometry()),
                 qPrintable(a->objectName() + " overlaps " + b->objectName()));
      }
    }
  }
};

}  // namespace tnw::selmethod

QTEST_MAIN(tnw::selmethod::SelMethodDialogTest)
#include "sel_method_dialog_test.moc"
