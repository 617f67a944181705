// The direct method's analysis controls driven through the real widgets: the line under the
// status lights that names a conflict, and the exact weight ranges beside the results grid.

#include "common/core/recording_ui_services.h"
#include "direct/ui/attribute_button_widget.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct/core/exact_weight_bounds.h"
#include "direct_a_dialog_helpers.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"

// Qt
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

// Std
#include <memory>

namespace tnw::direct {

using test::control;

class DirectAAnalysisDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void anInconsistentJudgmentIsExplainedUnderTheLights();
  void theResultsStepShowsTheExactWeightRangesBesideTheGrid();

 private:
  void openOnJudgments(const QVector<int>& groupOf, int reference);
  void judge(int target, const QString& lower, const QString& upper);
  QPushButton* button(const char* name) const { return control<QPushButton>(m_dialog.get(), name); }

  WizardContext m_context;
  RecordingUiServices m_ui;
  test::RecordingDirectAEvents m_events;
  std::unique_ptr<DirectADialog> m_dialog;
};

void DirectAAnalysisDialogTest::cleanup() {
  m_dialog.reset();
  m_events = {};
  m_ui.clearMessages();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
}

void DirectAAnalysisDialogTest::openOnJudgments(const QVector<int>& groupOf, int reference) {
  m_context = test::makeContext(static_cast<int>(groupOf.size()));
  m_dialog = std::make_unique<DirectADialog>(m_context, m_ui, m_events);
  m_dialog->show();
  QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
  for (int j = 0; j < groupOf.size(); ++j) {
    while (m_dialog->presenter().ordering().order().GroupCount() < groupOf[j]) {
      QTest::mouseClick(button("cmdAdd"), Qt::LeftButton);
    }
    QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), groupOf[j]),
                              QStringLiteral("A%1").arg(j)));
  }
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QTest::mouseClick(control<AttributeButtonWidget>(m_dialog.get(), "cmdAttButtons", reference),
                    Qt::LeftButton);
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 2);
}

void DirectAAnalysisDialogTest::judge(int target, const QString& lower, const QString& upper) {
  auto* combo = control<QComboBox>(m_dialog.get(), "imgcmbTargetAtt");
  combo->setCurrentIndex(target);
  emit combo->activated(target);
  for (auto [name, text] : {std::pair{"txtWRUpper", upper}, std::pair{"txtWRLower", lower}}) {
    auto* box = control<QLineEdit>(m_dialog.get(), name);
    box->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, text);
  }
  QTest::keyClick(control<QLineEdit>(m_dialog.get(), "txtWRLower"), Qt::Key_Return);
}

void DirectAAnalysisDialogTest::anInconsistentJudgmentIsExplainedUnderTheLights() {
  openOnJudgments({1, 2, 3}, 1);
  auto* line = control<QLabel>(m_dialog.get(), "lblJudgmentDiagnosis");
  QVERIFY(line != nullptr);
  QVERIFY(line->isVisible());
  QVERIFY(line->text().isEmpty());
  // Attribute 3 is less important than the reference, so its ratio cannot pass 1.
  judge(2, QStringLiteral("0.5"), QStringLiteral("1.5"));
  QTRY_COMPARE(line->text(),
               QStringLiteral("Conflict: the upper bound 1.50 is above 1.00, the lower ratio of "
                              "\"Att2\" (more important). Nearest consistent interval: 0.50 to "
                              "1.00."));
  QVERIFY(!button("cmdEnter")->isEnabled());
  judge(2, QStringLiteral("0.5"), QStringLiteral("1"));
  QTRY_VERIFY(line->text().isEmpty());
  QVERIFY(button("cmdEnter")->isEnabled());
}

void DirectAAnalysisDialogTest::theResultsStepShowsTheExactWeightRangesBesideTheGrid() {
  // Reference [1, 1] in group 2, [0.5, 1] in group 3, [1, 2] in group 1.
  openOnJudgments({2, 3, 1}, 0);
  judge(1, QStringLiteral("0.5"), QStringLiteral("1"));
  QTest::mouseClick(button("cmdEnter"), Qt::LeftButton);
  judge(2, QStringLiteral("1"), QStringLiteral("2"));
  QTest::mouseClick(button("cmdEnter"), Qt::LeftButton);
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 3);

  auto* grid = control<QTableWidget>(m_dialog.get(), "gridTN");
  QCOMPARE(grid->item(0, 4)->text(), QStringLiteral("0.4000,     0.2500"));
  auto* title = control<QLabel>(m_dialog.get(), "lblExactBounds");
  auto* exact = control<QTableWidget>(m_dialog.get(), "gridExactBounds");
  QVERIFY(title != nullptr && exact != nullptr);
  QVERIFY(title->isVisible() && exact->isVisible());
  QCOMPARE(title->text(), QString::fromUtf8(ExactWeightBounds::kTitle));
  QCOMPARE(exact->columnCount(), 4);
  QCOMPARE(exact->horizontalHeaderItem(2)->text(), QStringLiteral("Lowest"));
  QCOMPARE(exact->rowCount(), 3);
  const char* expected[3][2] = {{"0.2500", "0.4000"}, {"0.1429", "0.3333"}, {"0.3333", "0.5714"}};
  for (int r = 0; r < 3; ++r) {
    QCOMPARE(exact->item(r, 1)->text(), QStringLiteral("Att%1").arg(r + 1));
    QCOMPARE(exact->item(r, 2)->text(), QString::fromUtf8(expected[r][0]));
    QCOMPARE(exact->item(r, 3)->text(), QString::fromUtf8(expected[r][1]));
  }
  // Reached by the keyboard: the next control that takes Tab after the results grid.
  QWidget* next = grid->nextInFocusChain();
  while (next != nullptr && next != grid &&
         (!(next->focusPolicy() & Qt::TabFocus) || !next->isVisible())) {
    next = next->nextInFocusChain();
  }
  QCOMPARE(next, static_cast<QWidget*>(exact));
}

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::DirectAAnalysisDialogTest)
#include "direct_a_analysis_dialog_test.moc"
