#include "trade_off_dialog_fixture.h"

// Qt
#include <QApplication>
#include <QEvent>
#include <QStackedWidget>

// Std
#include <memory>

namespace tnw::tradeoffs {

using namespace tnw::testing;

namespace {

// Counts the resize events of a widget and of the widgets inside it.
class ResizeCounter : public QObject {
 public:
  explicit ResizeCounter(QWidget* root) : m_root(root) { qApp->installEventFilter(this); }
  ~ResizeCounter() override { qApp->removeEventFilter(this); }
  ResizeCounter(const ResizeCounter&) = delete;
  ResizeCounter& operator=(const ResizeCounter&) = delete;

  int count() const { return m_count; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize && watched->isWidgetType()) {
      auto* w = static_cast<QWidget*>(watched);
      if (w == m_root || m_root->isAncestorOf(w)) ++m_count;
    }
    return false;
  }

 private:
  QWidget* m_root;
  int m_count = 0;
};

}  // namespace

class TradeOffsPageChangeDialogTest : public QObject, TradeOffDialogParts {
  Q_OBJECT

 private:
  std::unique_ptr<TradeOffsADialog> openOnResults() {
    auto d = showDialog(makeModel(3), {900, 620});
    [&] { QVERIFY(QTest::qWaitForWindowExposed(d.get())); }();
    typeScores(d.get(), "6", "2", "3", "7");
    clickButton(d.get(), "cmdTradeOffEnter");
    clickButton(d.get(), "cmdNext");
    QApplication::processEvents();
    return d;
  }


 private slots:
  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }

  // The instruction that comes back with the judgment page makes the pages lower; the results
  // page is hidden first and is not laid out again for the lower height.
  void backDoesNotLayTheResultsPageOutAgain() {
    auto d = openOnResults();
    auto* pages = child<QStackedWidget>(d.get(), QStringLiteral("pages"));
    QWidget* results = child<QWidget>(d.get(), QStringLiteral("pageResults"));
    QCOMPARE(pages->currentWidget(), results);
    const QRect shown = results->geometry();
    {
      const ResizeCounter resizes(results);
      clickButton(d.get(), "cmdBack");
      QApplication::processEvents();
      QCOMPARE(resizes.count(), 0);
    }
    QCOMPARE(pages->currentWidget()->objectName(), QStringLiteral("pageJudgment"));
    QVERIFY(child<QWidget>(d.get(), QStringLiteral("lblInstruction"))->isVisible());
    QCOMPARE(pages->currentWidget()->geometry(), pages->rect());
    QVERIFY(pages->height() < shown.height());
    // Next shows the results page again at the height it had.
    clickButton(d.get(), "cmdTradeOffEnter");
    clickButton(d.get(), "cmdNext");
    QApplication::processEvents();
    QCOMPARE(pages->currentWidget(), results);
    QCOMPARE(results->geometry(), shown);
    QCOMPARE(results->geometry(), pages->rect());
  }
};

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::TradeOffsPageChangeDialogTest)
#include "trade_offs_page_change_dialog_test.moc"
