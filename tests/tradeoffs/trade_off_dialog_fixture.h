#pragma once

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/ui/tradeoffs_a_dialog.h"
#include "tradeoffs/core/tradeoffs_a_events.h"
#include "tradeoffs/core/tradeoffs_a_presenter.h"

// Qt
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSize>
#include <QtTest>

// Std
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tnw::testing {

// Records the trade-off dialog's events, with the arrays of the export.
class RecordingTradeOffsEvents : public tradeoffs::TradeOffsAEvents {
 public:
  // One ExportTradeOffsW as it arrived.
  struct Export {
    std::string type;
    std::vector<double> weights;
    std::vector<double> weightsH;
    std::vector<double> weightsL;
  };

  void ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                        std::vector<double>& WeightsH, std::vector<double>& WeightsL) override {
    log.push_back("ExportTradeOffsW " + TNType);
    exports.push_back({TNType, Weights, WeightsH, WeightsL});
  }
  void SendMasseges(const std::string& Msg) override { log.push_back("SendMasseges " + Msg); }
  void ShowTNWSelMethod() override { log.push_back("ShowTNWSelMethod"); }
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    log.push_back("UnloadTNWizard " + std::to_string(fIndex) + (WeightsDone ? " true" : " false"));
  }

  // Every event in order, as text.
  std::vector<std::string> log;
  // The exports in order.
  std::vector<Export> exports;
};

// Finds a control of a dialog by its objectName; a missing control ends the test run.
template <typename T>
T* child(QWidget* dialog, const QString& name) {
  T* w = dialog->findChild<T*>(name);
  if (w == nullptr) qFatal("no control named %s", qPrintable(name));
  return w;
}

// Replaces the text of a score box by typing: the whole text is selected, then the keys go
// through the box's key filter one by one.
inline void typeScore(QWidget* dialog, const char* box, const char* keys) {
  auto* edit = child<QLineEdit>(dialog, QString::fromLatin1(box));
  edit->setFocus();
  QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(edit, QString::fromLatin1(keys));
}

// Types all four scores of a trade-off: (1) A first, (2) A second, (3) B first, (4) B second.
inline void typeScores(QWidget* dialog, const char* a1, const char* a2, const char* b1,
                       const char* b2) {
  typeScore(dialog, "txtTradeOffAFirstScore", a1);
  typeScore(dialog, "txtTradeOffASecondScore", a2);
  typeScore(dialog, "txtTradeOffBFirstScore", b1);
  typeScore(dialog, "txtTradeOffBSecondScore", b2);
}

// Clicks a push button of the dialog with the mouse.
inline void clickButton(QWidget* dialog, const char* name) {
  QTest::mouseClick(child<QPushButton>(dialog, QString::fromLatin1(name)), Qt::LeftButton);
}

// What a trade-off dialog under test is made with: the wizard's context, recorders of the UI
// services and of the events, and fixed draws for the random pairs. A dialog test class derives
// from it beside QObject.
class TradeOffDialogParts {
 protected:
  // A dialog on `model`, first resized to `size` when one is given, shown as the wizard shows it.
  std::unique_ptr<tradeoffs::TradeOffsADialog> showDialog(AttributeModel model, QSize size = {}) {
    m_context.model = std::move(model);
    auto d = std::make_unique<tradeoffs::TradeOffsADialog>(m_context, m_ui, m_events, &m_random);
    if (size.isValid()) d->resize(size);
    d->showModal();
    return d;
  }
  // Makes every part new, as before the first test.
  void renewParts() { *this = TradeOffDialogParts{}; }

  WizardContext m_context;
  RecordingUiServices m_ui;
  RecordingTradeOffsEvents m_events;
  SequenceRandomSource m_random{{0.2f, 0.7f, 0.4f, 0.9f, 0.1f, 0.6f}};
};

// Enters the scores the page offers for every trade-off of the automatic cycle, then goes Next
// to the results.
inline void enterEveryTradeOffAndGoNext(QWidget* dialog) {
  auto* enter = child<QPushButton>(dialog, QStringLiteral("cmdTradeOffEnter"));
  while (enter->isEnabled()) enter->click();
  clickButton(dialog, "cmdNext");
}

}  // namespace tnw::testing
