// The three dialogs show their frame buttons in one order, the one the platform's dialog
// button box gives: Help where the platform wants it, Back just before Next, and the captions
// and mnemonics unchanged.

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"
#include "selmethod/ui/selmethod_dialog.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/ui/tradeoffs_a_dialog.h"
#include "tradeoffs/core/tradeoffs_a_events.h"

// Qt
#include <QDialogButtonBox>
#include <QPushButton>
#include <QStyle>
#include <QTest>

// Std
#include <algorithm>
#include <map>
#include <memory>

namespace tnw {
namespace {

using namespace tnw::direct;

// The selection dialog's and the trade-off dialog's events, which the test does not look at.
class IgnoredEvents : public selmethod::SelMethodEvents, public tradeoffs::TradeOffsAEvents {
 public:
  void ShowTNWDirect() override {}
  void ShowTNWTradeOffsA() override {}
  void UnloadTNWizard(std::int16_t, bool) override {}
  void SendMasseges(const std::string&) override {}
  void ExportTradeOffsW(const std::string&, std::vector<double>&, std::vector<double>&,
                        std::vector<double>&) override {}
  void ShowTNWSelMethod() override {}
};

// The captions of the frame's buttons from left to right ("&Help" for either help button).
QStringList buttonOrder(QWidget* dialog) {
  QCoreApplication::processEvents();
  std::multimap<int, QString> byX;
  for (const char* name :
       {"cmdBack", "cmdNext", "cmdFinish", "cmdCancel", "cmdHelp", "cmdTNWizardHelp"}) {
    auto* b = dialog->findChild<QPushButton*>(QString::fromLatin1(name));
    if (b == nullptr) continue;
    byX.emplace(b->mapTo(dialog, QPoint(0, 0)).x(), b->text());
  }
  QStringList order;
  for (const auto& [x, text] : byX) order << text;
  return order;
}

}  // namespace

class ButtonOrderTest : public QObject {
  Q_OBJECT

 private slots:
  void theThreeDialogsShowOneButtonOrder();

 private:
  RecordingUiServices m_ui;
  IgnoredEvents m_events;
};

void ButtonOrderTest::theThreeDialogsShowOneButtonOrder() {
  WizardContext context = test::makeContext(3);
  auto sel = std::make_unique<selmethod::SelMethodDialog>(context, m_ui, m_events);
  sel->showModeless();
  test::RecordingDirectAEvents events;
  auto direct = std::make_unique<DirectADialog>(context, m_ui, events);
  direct->show();
  WizardContext tradeContext;
  tradeContext.model = testing::makeModel(3);
  testing::SequenceRandomSource random{{0.2f, 0.7f, 0.4f, 0.9f, 0.1f, 0.6f}};
  auto trade = std::make_unique<tradeoffs::TradeOffsADialog>(tradeContext, m_ui, m_events, &random);
  trade->show();
  QVERIFY(QTest::qWaitForWindowExposed(trade.get()));

  // With TNW_SCREENSHOT_DIR set, the three dialogs are saved there to be looked at.
  const QString shots = qEnvironmentVariable("TNW_SCREENSHOT_DIR");
  if (!shots.isEmpty()) {
    QVERIFY(sel->grab().save(shots + QStringLiteral("/selection.png")));
    QVERIFY(direct->grab().save(shots + QStringLiteral("/direct.png")));
    trade->findChild<QWidget*>(QStringLiteral("shpPCA"))->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    QVERIFY(trade->grab().save(shots + QStringLiteral("/tradeoffs.png")));
  }
  const QStringList order = buttonOrder(sel.get());
  QCOMPARE(order.size(), 5);
  QCOMPARE(buttonOrder(direct.get()), order);
  QCOMPARE(buttonOrder(trade.get()), order);
  // Back comes just before Next; Help is first where the platform puts help at the left.
  const auto back = order.indexOf(QStringLiteral("< &Back"));
  QCOMPARE(order.indexOf(QStringLiteral("&Next >")), back + 1);
  const int layout = sel->style()->styleHint(QStyle::SH_DialogButtonLayout);
  QCOMPARE(order.indexOf(QStringLiteral("&Help")), layout == QDialogButtonBox::WinLayout ? 4 : 0);
  QVERIFY(order.contains(QStringLiteral("&Finish")));
  QVERIFY(order.contains(QStringLiteral("&Cancel")));
}

}  // namespace tnw

QTEST_MAIN(tnw::ButtonOrderTest)
#include "button_order_test.moc"
