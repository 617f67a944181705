#pragma once

#include "tradeoffs/ui/tradeoffs_printout.h"
#include "wizard/ui/dialog_window.h"

// Std
#include <memory>

class QLabel;
class QPagedPaintDevice;
class QPrinter;
class QPushButton;
class QStackedWidget;

namespace tnw {
struct WizardContext;
class UiServices;
}  // namespace tnw

namespace tnw::tradeoffs {

class JudgmentsFile;
class RandomSource;
class SavedJudgments;
class ScoreBoxFilter;
class TradeOffsAEvents;
class TradeOffsAccessibilityQt;
class TradeOffsAPresenter;
class TradeOffsJudgmentWidget;
class TradeOffsResultsWidget;

// frmTradeOffsA, the trade-off method's dialog, as a Qt view over TradeOffsAPresenter: the
// judgment page and the results page in the wizard frame with Back, Next, Finish, Cancel, Help
// and Print. Every control's objectName is its given name. The page views render their page;
// the dialog wires their controls to the presenter (connect<Page>()) and, on the presenter's
// change signal, renders the frame and the page on show. This header names the presenter only
// by declaration, so it can be included beside the direct method's headers.
class TradeOffsADialog : public DialogWindow {
  Q_OBJECT

 public:
  // Builds and loads the dialog (the presenter's Form_Load runs here). Without a random source
  // the scores are drawn from the clock; with a judgments file form the judgment page offers
  // Save and Load of its judgments (it must outlive the dialog).
  TradeOffsADialog(WizardContext& context, UiServices& ui, TradeOffsAEvents& events,
                   RandomSource* random = nullptr, const JudgmentsFile* judgmentsFile = nullptr);
  ~TradeOffsADialog() override;

  // The presenter behind the dialog.
  const TradeOffsAPresenter& presenter() const;
  TradeOffsAPresenter& presenter();
  // Save and Load of the judgment page.
  const SavedJudgments& savedJudgments() const { return *m_saved; }
  // The judgment page (step 1) and the results page (step 2).
  TradeOffsJudgmentWidget* judgmentPage() const { return m_judgment; }
  TradeOffsResultsWidget* resultsPage() const { return m_results; }

  // The print-out of the results page as it is shown now.
  TradeOffsPrintout printout() const;
  // Prints the results page on a printer or PDF writer, without asking (Print asks first).
  void printResults(QPagedPaintDevice& device) const;
  // The drag cursors' directory: the host's directory (NorixDir) as given.
  static QString hostDirectory(const WizardContext& context);

 protected:
  void closeRequested() override;

 private:
  void buildFrame();
  void connectFrame();
  void connectJudgment();
  void connectScores();
  void connectResults();
  void connectSavedJudgments();

  void connectUndo();
  // Runs a user action unless the signal came from rendering.
  template <typename Action>
  void act(Action action);
  void render();
  void print();
  void connectExports();
  QString suggestedName(const char* suffix) const;

  WizardContext& m_context;
  UiServices& m_ui;
  std::unique_ptr<RandomSource> m_ownRandom;
  std::unique_ptr<TradeOffsAPresenter> m_presenter;
  std::unique_ptr<SavedJudgments> m_saved;
  QLabel* m_instruction = nullptr;
  QStackedWidget* m_pages = nullptr;
  TradeOffsJudgmentWidget* m_judgment = nullptr;
  TradeOffsResultsWidget* m_results = nullptr;
  ScoreBoxFilter* m_scoreFilter = nullptr;
  TradeOffsAccessibilityQt* m_accessibility = nullptr;
  QPushButton* m_cmdBack = nullptr;
  QPushButton* m_cmdNext = nullptr;
  QPushButton* m_cmdFinish = nullptr;
  QPushButton* m_cmdCancel = nullptr;
  QPushButton* m_cmdHelp = nullptr;
  QPushButton* m_cmdPrint = nullptr;
  bool m_rendering = false;
};

}  // namespace tnw::tradeoffs
