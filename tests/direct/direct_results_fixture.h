#pragma once

// A shown frmDirectA brought to its results step through the real widgets, for the tests of the
// results step's exports and print-out.

#include "common/core/recording_ui_services.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct_a_dialog_helpers.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"

// Qt
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

// Std
#include <memory>

namespace tnw::test {

// A dialog over n attributes, each in a group of its own in model order, with the second as the
// reference and every other attribute judged by typing; it ends on the results step.
class DirectResultsFixture {
 public:
  // Opens the dialog and takes it to the results step; false when a step did not work.
  bool open(int n, const std::string& modelFile = "/home/anna/models/family_car.nrx") {
    WizardContext context = makeContext(n);
    context.PathAndFileName = modelFile;
    return open(context);
  }
  // The same over a given context.
  bool open(const WizardContext& context) {
    m_context = context;
    const int n = m_context.model.attributeCount();
    m_dialog = std::make_unique<direct::DirectADialog>(m_context, m_ui, m_events);
    m_dialog->show();
    if (!QTest::qWaitForWindowExposed(m_dialog.get())) return false;
    for (int j = 0; j < n; ++j) {
      while (m_dialog->presenter().ordering().order().GroupCount() < j + 1) {
        QTest::mouseClick(button("cmdAdd"), Qt::LeftButton);
      }
      if (!dragAndDrop(orderBox(m_dialog.get(), j + 1), QStringLiteral("A%1").arg(j))) return false;
    }
    QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
    QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAttButtons", 1), Qt::LeftButton);
    QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
    // The first attribute is more important than the reference, the others less, each interval
    // just under the one before: [1 - 0.03 (j - 1), 1 - 0.03 (j - 2)].
    judge(0, QStringLiteral("1.5"), QStringLiteral("2"));
    const auto step = [](int k) { return QString::number(1.0 - 0.03 * k, 'f', 2); };
    for (int j = 2; j < n; ++j) judge(j, step(j - 1), step(j - 2));
    if (!button("cmdNext")->isEnabled()) return false;
    QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
    return m_dialog->presenter().WizardStep() == direct::DirectAPresenter::kResultsStep;
  }
  // Closes the dialog and checks that nothing is left behind.
  void close() {
    m_dialog.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  QPushButton* button(const char* name) const { return control<QPushButton>(m_dialog.get(), name); }
  QTableWidget* gridTN() const { return control<QTableWidget>(m_dialog.get(), "gridTN"); }

  WizardContext m_context;
  RecordingUiServices m_ui;
  RecordingDirectAEvents m_events;
  std::unique_ptr<direct::DirectADialog> m_dialog;

 private:
  void judge(int target, const QString& lower, const QString& upper) {
    auto* combo = control<QComboBox>(m_dialog.get(), "imgcmbTargetAtt");
    combo->setCurrentIndex(target);
    emit combo->activated(target);
    for (const char* name : {"txtWRUpper", "txtWRLower"}) {
      auto* box = control<QLineEdit>(m_dialog.get(), name);
      box->setFocus(Qt::MouseFocusReason);
      QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
      QTest::keyClicks(box, name[5] == 'U' ? upper : lower);
    }
    QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdEnter"), Qt::LeftButton);
  }
};

}  // namespace tnw::test
