#pragma once

#include "direct/core/direct_a_presenter.h"
#include "direct/core/saved_intervals.h"
#include "graphs/ui/results_printout.h"
#include "wizard/ui/dialog_window.h"

// Qt
#include <QTimer>

class QLabel;
class QLineEdit;
class QPagedPaintDevice;
class QPushButton;
class QStackedWidget;

namespace tnw::direct {

class DirectAccessibilityQt;
class DirectJudgmentPageWidget;
class DirectOrderPageWidget;
class DirectReferencePageWidget;
class DirectResultsPageWidget;
class RatioBoxFilter;

// frmDirectA: the direct method's four steps as a Qt dialog over DirectAPresenter. The dialog
// holds one view per page, wires each view's actions to presenter operations (connect<Page>())
// and, after each change, renders the frame, every page's controls and the page on show.
// Every control's objectName is its given name.
class DirectADialog : public DialogWindow {
  Q_OBJECT

 public:
  // Builds and loads the dialog: the presenter's Form_Load runs here, so the load message
  // reaches events before the constructor returns. With an intervals file form the judgment
  // step offers Save and Load of its judgments (it must outlive the dialog).
  DirectADialog(WizardContext& context, UiServices& ui, DirectAEvents& events,
                QWidget* parent = nullptr, const IntervalsFile* intervalsFile = nullptr);
  // Stops Timer1 and the presenter's change notifications before the widgets go.
  ~DirectADialog() override;

  // The presenter behind the dialog.
  const DirectAPresenter& presenter() const { return m_presenter; }
  // Save and Load of the judgment step.
  const SavedIntervals& savedIntervals() const { return m_saved; }
  // Timer1, which blinks the indicator and the status lamps.
  const QTimer& timer() const { return m_timer; }
  // The print-out of the results step as it is shown now.
  ResultsPrintout printout() const;
  // Prints the results step on a printer or PDF writer, without asking (Print asks first).
  void printResults(QPagedPaintDevice& device) const;

 protected:
  // The close box and Escape do what Cancel does.
  void closeRequested() override;

 private:
  QSize initialSize() const;
  QWidget* buildHeader();
  QLayout* buildButtons();
  void connectOrderPage();
  void connectReferencePage();
  void connectJudgmentPage();
  void connectButtons();
  void connectExports();
  void setUpChart();
  QString suggestedName(const char* suffix) const;
  void render();
  void renderControls();
  void renderHeader();
  void applyFocusRequest();
  void releasePressedButtons();
  void focusStep(int step);
  void applyTabOrder(int step);

  WizardContext& m_context;
  UiServices& m_ui;
  DirectAPresenter m_presenter;
  SavedIntervals m_saved;
  QTimer m_timer;
  QStackedWidget* m_stack = nullptr;
  QWidget* m_header = nullptr;
  QLabel* m_refImage = nullptr;
  QLabel* m_refName = nullptr;
  QLabel* m_refLow = nullptr;
  QLabel* m_refHigh = nullptr;
  QWidget* m_refRange = nullptr;
  DirectOrderPageWidget* m_orderPage = nullptr;
  DirectReferencePageWidget* m_referencePage = nullptr;
  DirectJudgmentPageWidget* m_judgmentPage = nullptr;
  DirectResultsPageWidget* m_resultsPage = nullptr;
  RatioBoxFilter* m_ratioFilter = nullptr;
  DirectAccessibilityQt* m_accessibility = nullptr;
  QPushButton* m_cmdBack = nullptr;
  QPushButton* m_cmdNext = nullptr;
  QPushButton* m_cmdFinish = nullptr;
  QPushButton* m_cmdCancel = nullptr;
  QPushButton* m_cmdHelp = nullptr;
  QPushButton* m_cmdPrint = nullptr;
  QList<QWidget*> m_tabChain;
  bool m_rendering = false;
  bool m_renderAgain = false;
};

}  // namespace tnw::direct
