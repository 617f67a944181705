// The direct method driven end to end through the real widgets of frmDirectA.

#include "direct/ui/direct_a_dialog.h"

#include "common/core/recording_ui_services.h"
#include "direct/ui/attribute_button_widget.h"
#include "direct/ui/cone_area_widget.h"
#include "direct/ui/status_lights_widget.h"
#include "direct_a_dialog_helpers.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"

// Qt
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>

// Std
#include <algorithm>
#include <cmath>
#include <memory>

namespace tnw::direct {

using test::control;

namespace {

// The contrast ratio of a text colour on a background as the accessibility guidelines define it.
double contrast(const QColor& a, const QColor& b) {
  const auto luminance = [](const QColor& c) {
    const auto channel = [](double v) {
      return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
  };
  const double la = luminance(a);
  const double lb = luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

}  // namespace

class DirectADialogTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void loadShowsStepZeroAndSendsTheOrderMessage();
  void fullDirectMethodThroughTheWidgets();
  void dropOnAPlacedButtonMovesIntoItsGroup();
  void groupBoxesMadeLaterAreDescribed();
  void thirtyOneAttributesScrollInBothLists();
  void cancelOnEveryStepExportsNothing();
  void backOnStepZeroReturnsToMethodSelection();
  void backFromTheReferenceKeepsTheOrderAndNextReordersAgain();

 private:
  void open(int n);
  void placeAll(const QVector<int>& groupOf);
  void typeInto(QLineEdit* box, const QString& text);
  QPushButton* button(const char* name) const { return control<QPushButton>(m_dialog.get(), name); }
  void judgeByTyping(int target, const QString& lower, const QString& upper);

  WizardContext m_context;
  RecordingUiServices m_ui;
  test::RecordingDirectAEvents m_events;
  std::unique_ptr<DirectADialog> m_dialog;
};

void DirectADialogTest::cleanup() {
  m_dialog.reset();
  m_events = {};
  m_ui.clearMessages();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
}

void DirectADialogTest::open(int n) {
  m_context = test::makeContext(n);
  m_dialog = std::make_unique<DirectADialog>(m_context, m_ui, m_events);
  m_dialog->show();
  QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
  m_dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void DirectADialogTest::placeAll(const QVector<int>& groupOf) {
  for (int j = 0; j < groupOf.size(); ++j) {
    while (m_dialog->presenter().ordering().order().GroupCount() < groupOf[j]) {
      QTest::mouseClick(button("cmdAdd"), Qt::LeftButton);
    }
    QWidget* box = test::orderBox(m_dialog.get(), groupOf[j]);
    QVERIFY(box != nullptr);
    QVERIFY(test::dragAndDrop(box, QStringLiteral("A%1").arg(j)));
  }
}

void DirectADialogTest::typeInto(QLineEdit* box, const QString& text) {
  box->setFocus(Qt::MouseFocusReason);
  QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(box, text);
}

void DirectADialogTest::judgeByTyping(int target, const QString& lower, const QString& upper) {
  auto* combo = control<QComboBox>(m_dialog.get(), "imgcmbTargetAtt");
  combo->setCurrentIndex(target);
  emit combo->activated(target);
  auto* txtLower = control<QLineEdit>(m_dialog.get(), "txtWRLower");
  auto* txtUpper = control<QLineEdit>(m_dialog.get(), "txtWRUpper");
  typeInto(txtUpper, upper);
  typeInto(txtLower, lower);
  QTest::keyClick(txtLower, Qt::Key_Return);
}

void DirectADialogTest::loadShowsStepZeroAndSendsTheOrderMessage() {
  open(3);
  QCOMPARE(m_dialog->windowTitle(),
           QStringLiteral("Tarnel Wizard: Give an importantce order of the attirbutes"));
  QCOMPARE(m_events.messages.size(), std::size_t{1});
  QCOMPARE(m_events.messages[0], "Order the attributes according to their relative importance.");
  QVERIFY(!button("cmdNext")->isEnabled());
  QVERIFY(!button("cmdFinish")->isEnabled());
  QCOMPARE(button("cmdBack")->text(), QStringLiteral("< &Back"));
  QCOMPARE(button("cmdNext")->text(), QStringLiteral("&Next >"));
  for (int j = 0; j < 3; ++j) {
    auto* b = control<AttributeButtonWidget>(m_dialog.get(), "cmdAttA", j);
    QVERIFY(b != nullptr && b->isVisible());
    QCOMPARE(b->text(), QStringLiteral("Att%1").arg(j + 1));
    QCOMPARE(b->faceColour(), QColor(255, 192, 192));
  }
  QVERIFY(test::orderBoxSelected(m_dialog.get(), 1));
  QVERIFY(test::orderBox(m_dialog.get(), 2) != nullptr);
  QCOMPARE(control<QLabel>(m_dialog.get(), "lblNotice3")->text().left(17),
           QStringLiteral("    Notice that: "));
}

void DirectADialogTest::fullDirectMethodThroughTheWidgets() {
  open(5);
  // Step 0: attributes 0 and 1 most important, 2 next, 3 and 4 least.
  placeAll({1, 1, 2, 3, 3});
  QVERIFY(button("cmdNext")->isEnabled());
  for (int j = 0; j < 5; ++j) {
    QVERIFY(!control<AttributeButtonWidget>(m_dialog.get(), "cmdAttA", j)->isVisible());
  }
  // Select group 2 and insert an empty group before it: groups 2 and 3 move down.
  QTest::mouseClick(test::orderBox(m_dialog.get(), 2), Qt::LeftButton);
  QVERIFY(test::orderBoxSelected(m_dialog.get(), 2));
  QTest::mouseClick(button("cmdInsert"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().ordering().order().GroupCount(), 4);
  QWidget* moved = test::orderBox(m_dialog.get(), 3);
  QCOMPARE(test::elements<AttributeButtonWidget>(moved, "cmdAttB").size(), 1);
  QCOMPARE(test::elements<AttributeButtonWidget>(moved, "cmdAttB")[0]->tag(), QStringLiteral("B2"));
  QVERIFY(test::orderBox(m_dialog.get(), 2)->findChildren<AttributeButtonWidget*>().isEmpty());

  // Step 1: the empty group is gone; choose attribute 2 as the reference.
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->windowTitle(),
           QStringLiteral("Tarnel Wizard: Select reference attributes for pairwise comparisons"));
  QCOMPARE(m_dialog->presenter().result().FinalGroupCount, 3);
  QVERIFY(!button("cmdNext")->isEnabled());
  auto* ref = control<AttributeButtonWidget>(m_dialog.get(), "cmdAttButtons", 2);
  QVERIFY(ref->isVisible());
  QTest::mouseClick(ref, Qt::LeftButton);
  QCOMPARE(control<QLabel>(m_dialog.get(), "lblRefAtt")->text(), QStringLiteral("Att3"));
  auto* indicator = control<QWidget>(m_dialog.get(), "picIndicator");
  QVERIFY(indicator->isVisible());
  QCOMPARE(indicator->parentWidget(), ref);
  QVERIFY(m_dialog->timer().isActive());
  QVERIFY(button("cmdNext")->isEnabled());

  // Step 2: judge the more important group by typing and the less important one by handles.
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->windowTitle(),
           QStringLiteral("Tarnel Wizard: Estimate intervals of the weight ratios"));
  QCOMPARE(m_events.messages.back(),
           " Indicate a value reference region on the two selected attributes.");
  auto* combo = control<QComboBox>(m_dialog.get(), "imgcmbTargetAtt");
  QCOMPARE(combo->count(), 5);
  QCOMPARE(combo->currentIndex(), 0);
  QVERIFY(!combo->itemIcon(0).isNull());
  QCOMPARE(control<QLineEdit>(m_dialog.get(), "txtWRLower")->text(), QStringLiteral("1.20"));
  judgeByTyping(0, QStringLiteral("1.5"), QStringLiteral("2"));
  auto* lights = m_dialog->findChild<StatusLightsWidget*>(QStringLiteral("picJudgmentState"));
  QVERIFY(lights->lampLit(0));
  QVERIFY(contrast(lights->lampColour(0), lights->textColour(0)) >= 4.5);
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdEnter"), Qt::LeftButton);
  // The target and its tie are marked as judged in the list at once.
  QCOMPARE(combo->itemText(0), QStringLiteral(" \u00A4 Att1"));
  QCOMPARE(combo->itemText(1), QStringLiteral(" \u00A4 Att2"));
  QVERIFY(!button("cmdNext")->isEnabled());

  combo->setCurrentIndex(3);
  emit combo->activated(3);
  auto* cone = m_dialog->findChild<ConeAreaWidget*>(QStringLiteral("picTradeOffsRange"));
  const double s = cone->areaSide();
  // Handle 1 at ratio 1.5: above the reference's group, so inconsistent.
  QFrame* upperHandle = cone->handle(1);
  const QPoint upperTarget =
      upperHandle->mapFrom(cone, cone->toPixels(QPointF(0.4 * s, s - 0.6 * s)).toPoint());
  test::mouseDrag(upperHandle, upperHandle->rect().center(), upperTarget);
  QVERIFY(lights->lampLit(2));
  QVERIFY(contrast(lights->lampColour(2), lights->textColour(2)) >= 4.5);
  QVERIFY(!control<QPushButton>(m_dialog.get(), "cmdEnter")->isEnabled());
  // Into the corner: invalid, the boxes keep their last numbers.
  const QString upperText = control<QLineEdit>(m_dialog.get(), "txtWRUpper")->text();
  QFrame* lowerHandle = cone->handle(0);
  test::mouseDrag(lowerHandle, lowerHandle->rect().center(),
                  lowerHandle->mapFrom(cone, cone->toPixels(QPointF(0.0, s)).toPoint()));
  QVERIFY(lights->lampLit(1));
  // The lit lamp of an invalid judgment blinks between yellow and white.
  QCOMPARE(m_dialog->timer().interval(), 300);
  const QColor before = lights->lampColour(1);
  QTRY_VERIFY(lights->lampColour(1) != before);
  QVERIFY(lights->lampColour(1) == QColor(Qt::yellow) ||
          lights->lampColour(1) == QColor(Qt::white));
  // Its label stays readable in both phases.
  for (int phase = 0; phase < 2; ++phase) {
    QVERIFY(contrast(lights->lampColour(1), lights->textColour(1)) >= 4.5);
    const QColor shown = lights->lampColour(1);
    QTRY_VERIFY(lights->lampColour(1) != shown);
  }
  QCOMPARE(control<QLineEdit>(m_dialog.get(), "txtWRUpper")->text(), upperText);
  // Both handles below the diagonal: ratios 0.5 and 0.7, consistent.
  test::mouseDrag(
      lowerHandle, lowerHandle->rect().center(),
      lowerHandle->mapFrom(cone, cone->toPixels(QPointF(0.7 * s, s - 0.35 * s)).toPoint()));
  test::mouseDrag(
      upperHandle, upperHandle->rect().center(),
      upperHandle->mapFrom(cone, cone->toPixels(QPointF(0.7 * s, s - 0.49 * s)).toPoint()));
  QVERIFY(lights->lampLit(0));
  const double lower = control<QLineEdit>(m_dialog.get(), "txtWRLower")->text().toDouble();
  const double upper = control<QLineEdit>(m_dialog.get(), "txtWRUpper")->text().toDouble();
  QVERIFY2(std::abs(lower - 0.5) < 0.03 && std::abs(upper - 0.7) < 0.03,
           qPrintable(QStringLiteral("%1 %2").arg(lower).arg(upper)));
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdEnter"), Qt::LeftButton);
  QVERIFY(button("cmdNext")->isEnabled());
  QVERIFY(button("cmdFinish")->isEnabled());

  // Step 3: the results grid.
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->windowTitle(),
           QStringLiteral("Tarnel Wizard: Results of the value judgments"));
  auto* grid = control<QTableWidget>(m_dialog.get(), "gridTN");
  QVERIFY(grid->isVisible());
  QCOMPARE(grid->rowCount(), 5);
  QCOMPARE(grid->horizontalHeaderItem(3)->text(), QStringLiteral("Middle Points"));
  QCOMPARE(grid->item(2, 1)->text(), QStringLiteral("Att3"));
  QCOMPARE(grid->item(4, 2)->text(), QStringLiteral("W5"));

  // Finish: the export, then the request to end the wizard.
  m_events.log.clear();
  QTest::mouseClick(button("cmdFinish"), Qt::LeftButton);
  QCOMPARE(m_events.log, (std::vector<std::string>{"ExportDirectAW", "UnloadTNWizard"}));
  const auto& e = m_events.exports.back();
  QCOMPARE(e.type, std::string("MAVT_DIRECT"));
  QCOMPARE(e.refAtt, std::int16_t{2});
  QCOMPARE(e.weights.size(), std::size_t{5});
  const double sumLower = 1.5 + 1.5 + 1 + lower + lower;
  const double sumUpper = 2 + 2 + 1 + upper + upper;
  QCOMPARE(e.weightsL[0], 1.5 / sumUpper);
  QCOMPARE(e.weightsH[2], 1.0 / sumLower);
  QCOMPARE(e.weights[1], (2.0 / sumLower + 1.5 / sumUpper) / 2);
  QCOMPARE(m_events.unloads.back().fIndex, std::int16_t{7});
  QVERIFY(m_events.unloads.back().weightsDone);
}

void DirectADialogTest::dropOnAPlacedButtonMovesIntoItsGroup() {
  open(3);
  placeAll({1, 2, 2});
  auto* placed = control<AttributeButtonWidget>(test::orderBox(m_dialog.get(), 2), "cmdAttB");
  QVERIFY(placed != nullptr);
  // Attribute 0 dropped on a button of group 2 moves there; group 1 stays as an empty box.
  QVERIFY(test::dragAndDrop(placed, QStringLiteral("B0")));
  QCOMPARE(m_dialog->presenter().ordering().order().AttGroup(0), 2);
  QVERIFY(test::orderBox(m_dialog.get(), 1)->findChildren<AttributeButtonWidget*>().isEmpty());
  QCOMPARE(test::orderBox(m_dialog.get(), 2)->findChildren<AttributeButtonWidget*>().size(), 3);
  QVERIFY(test::orderBoxSelected(m_dialog.get(), 2));
  // A foreign drag is refused.
  QMimeData text;
  text.setText(QStringLiteral("A1"));
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(test::orderBox(m_dialog.get(), 1), &enter);
  QVERIFY(!enter.isAccepted());
  // Dragging over the attribute list shows the dragged attribute's information.
  auto* list = control<QWidget>(m_dialog.get(), "picAttList");
  QMimeData mime;
  mime.setData(AttributeDropFilter::mimeType(), "A2");
  QDragEnterEvent over(QPoint(5, 5), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(list, &over);
  QCOMPARE(control<QLabel>(m_dialog.get(), "labAttName")->text(), QStringLiteral("Att3"));
  QVERIFY(control<QWidget>(m_dialog.get(), "optAttInfo", 2)->property("checked").toBool());
}

// The group boxes are made as the groups are needed; each is described for assistive tools.
void DirectADialogTest::groupBoxesMadeLaterAreDescribed() {
  open(3);
  const qsizetype atStart = test::elements<QWidget>(m_dialog.get(), "picOrder").size();
  placeAll({1, 2, 3});
  const QList<QWidget*> boxes = test::elements<QWidget>(m_dialog.get(), "picOrder");
  QVERIFY(boxes.size() > atStart);
  for (const QWidget* box : boxes) {
    QCOMPARE(box->accessibleDescription(),
             QStringLiteral("An importance group; press it to select it for Insert"));
  }
}

void DirectADialogTest::thirtyOneAttributesScrollInBothLists() {
  open(31);
  QTRY_VERIFY(control<QScrollBar>(m_dialog.get(), "vsrAtt")->maximum() > 0);
  QVector<int> groups;
  for (int j = 0; j < 31; ++j) groups.append(j + 1);
  placeAll(groups);
  QCOMPARE(m_dialog->presenter().ordering().order().GroupCount(), 31);
  QVERIFY(!button("cmdAdd")->isEnabled());
  QVERIFY(!button("cmdInsert")->isEnabled());
  QTRY_VERIFY(control<QScrollBar>(m_dialog.get(), "vsrOrder")->maximum() > 0);
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QTRY_VERIFY(control<QScrollBar>(m_dialog.get(), "vsrO")->maximum() > 0);
}

void DirectADialogTest::cancelOnEveryStepExportsNothing() {
  for (int step = 0; step < 4; ++step) {
    open(2);
    placeAll({1, 2});
    if (step >= 1) QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
    if (step >= 2) {
      QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAttButtons", 0), Qt::LeftButton);
      QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
    }
    if (step >= 3) {
      judgeByTyping(1, QStringLiteral("0.5"), QStringLiteral("0.5"));
      QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdEnter"), Qt::LeftButton);
      QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
    }
    QCOMPARE(m_dialog->presenter().WizardStep(), step);
    QTest::mouseClick(button("cmdCancel"), Qt::LeftButton);
    QVERIFY(m_events.exports.empty());
    QCOMPARE(m_events.log.back(), std::string("UnloadTNWizard"));
    QVERIFY(!m_events.unloads.back().weightsDone);
    cleanup();
  }
}

void DirectADialogTest::backOnStepZeroReturnsToMethodSelection() {
  open(2);
  m_events.log.clear();
  QTest::mouseClick(button("cmdBack"), Qt::LeftButton);
  QCOMPARE(m_events.log, (std::vector<std::string>{"ShowTNWSelMethod", "UnloadDirectA"}));
}

void DirectADialogTest::backFromTheReferenceKeepsTheOrderAndNextReordersAgain() {
  open(3);
  placeAll({1, 2, 2});
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAttButtons", 1), Qt::LeftButton);
  QVERIFY(m_dialog->timer().isActive());
  QTest::mouseClick(button("cmdBack"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 0);
  QVERIFY(!m_dialog->timer().isActive());
  QVERIFY(button("cmdNext")->isEnabled());
  QCOMPARE(test::orderBox(m_dialog.get(), 2)->findChildren<AttributeButtonWidget*>().size(), 2);
  // Attribute 2 joins attribute 0; the reference step shows two groups of the new order.
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 1), QStringLiteral("B2")));
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().result().FinalAttGroup, (std::vector<std::int16_t>{1, 2, 1}));
  auto* b2 = control<AttributeButtonWidget>(m_dialog.get(), "cmdAttButtons", 2);
  auto* b0 = control<AttributeButtonWidget>(m_dialog.get(), "cmdAttButtons", 0);
  QCOMPARE(b2->parentWidget(), b0->parentWidget());
  QCOMPARE(control<QLabel>(m_dialog.get(), "lblRefAtt")->text(), QString());
  QVERIFY(!control<QWidget>(m_dialog.get(), "picIndicator")->isVisible());
  QVERIFY(!button("cmdNext")->isEnabled());
}

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::DirectADialogTest)
#include "direct_a_dialog_test.moc"
