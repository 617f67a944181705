#pragma once

// Qt
#include <QDialog>

class QLabel;
class QPushButton;
class QStackedWidget;

namespace tnw {

class TradeOffsJudgmentWidget;
class TradeOffsResultsWidget;

// frmTradeOffsA, the trade-off method's dialog: the judgment page and the results page in the
// wizard frame with Back, Next, Finish, Cancel, Help and Print.
class TradeOffsADialog : public QDialog {
  Q_OBJECT

 public:
  // Builds the dialog with both pages; the judgment page is showing.
  explicit TradeOffsADialog(QWidget* parent = nullptr);
  ~TradeOffsADialog() override;

  // The judgment page (step 1).
  TradeOffsJudgmentWidget* judgmentPage() const { return m_judgment; }
  // The results page (step 2).
  TradeOffsResultsWidget* resultsPage() const { return m_results; }

 private:
  void buildFrame();

  QLabel* m_instruction = nullptr;
  QStackedWidget* m_pages = nullptr;
  TradeOffsJudgmentWidget* m_judgment = nullptr;
  TradeOffsResultsWidget* m_results = nullptr;
  QPushButton* m_cmdBack = nullptr;
  QPushButton* m_cmdNext = nullptr;
  QPushButton* m_cmdFinish = nullptr;
  QPushButton* m_cmdCancel = nullptr;
  QPushButton* m_cmdHelp = nullptr;
  QPushButton* m_cmdPrint = nullptr;
};

}  // namespace tnw
