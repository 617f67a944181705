#pragma once

#include "wizard/core/control_states.h"

// Qt
#include <QWidget>

// Std
#include <string>
#include <vector>

class QAction;
class QButtonGroup;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTabBar;
class QToolBar;

namespace tnw {
struct AttributeModel;
}  // namespace tnw

namespace tnw::tradeoffs {

class JudgmentPage;
class PcGraphWidget;
struct JudgmentControls;

// The judgment page of frmTradeOffsA: the choice of the two attributes, the counters, the
// numerical approach (the panel framePCGraph with A and B, the four score boxes with their step
// toolbars and the differences) and the verbal approach (seven degrees of preference), with
// Clear All and Enter, and Undo and Redo. It lays the controls out and shows a JudgmentPage
// (render); the dialog connects the controls to the presenter.
class TradeOffsJudgmentWidget : public QWidget {
  Q_OBJECT

 public:
  // The page's controls, each named by its objectName.
  struct Controls {
    QRadioButton* optPCAutomatic = nullptr;
    QRadioButton* optPCManual = nullptr;
    QListWidget* lstTradeOffFirstC = nullptr;
    QListWidget* lstTradeOffSecondC = nullptr;
    QLabel* labPCThisNum = nullptr;
    QLabel* labPCNeccesaryNum = nullptr;
    QTabBar* tsComparisonApproaches = nullptr;
    QStackedWidget* approaches = nullptr;
    QWidget* framePCNumericalC = nullptr;
    QWidget* framePCVerbalC = nullptr;
    PcGraphWidget* framePCGraph = nullptr;
    QLabel* labPCCriterion1 = nullptr;
    QLabel* labPCCriterion2 = nullptr;
    QLabel* labPCBestT = nullptr;
    QLabel* labPCWorstT = nullptr;
    QLabel* labScoreHead1 = nullptr;
    QLabel* labScoreHead2 = nullptr;
    // Score boxes in the order (1) A first, (2) A second, (3) B first, (4) B second.
    QLineEdit* scoreBox[4] = {};
    // The step toolbars tbScoreChanger(0..3), one per score box, and their Up/Down buttons.
    QToolBar* tbScoreChanger[4] = {};
    QAction* stepUp[4] = {};
    QAction* stepDown[4] = {};
    QLabel* labTradeOffDiff1 = nullptr;
    QLabel* labTradeOffDiff2 = nullptr;
    QRadioButton* optPCVerbal[7] = {};
    // The alternatives repeated beside the verbal scale: the two attributes' names and the
    // scores in the order of scoreBox.
    QLabel* verbalHead[2] = {};
    QLabel* verbalScore[4] = {};
    QButtonGroup* verbalGroup = nullptr;
    QPushButton* cmdTradeOffClearAll = nullptr;
    QPushButton* cmdTradeOffEnter = nullptr;
    // Save and Load of the judgments.
    QPushButton* cmdSaveJudgments = nullptr;
    QPushButton* cmdLoadJudgments = nullptr;

    // Undo and Redo of Enter and Clear All.
    QPushButton* cmdUndo = nullptr;
    QPushButton* cmdRedo = nullptr;
  };

  // Builds the page with every control.
  explicit TradeOffsJudgmentWidget(QWidget* parent = nullptr);

  // The page's controls.
  const Controls& controls() const { return m_c; }

  // Shows the page's state; the model gives the score ranges of the panel's corner labels.
  void render(const JudgmentPage& page, const AttributeModel& model);
  // Takes note that a score box already shows the text the user edited, with the caret where
  // the user left it, so that rendering it leaves the box alone.
  void keepEditedText(int box, const wizard::TextBoxState& state);
  // Moves the focus to a control of the page by its name (a text box gets its text selected);
  // nothing for an empty or unknown name.
  void focusControl(const std::string& name);

  // The score boxes' objectNames, in the order of Controls::scoreBox.
  static const char* scoreBoxName(int box);
  // The number of rows the two attribute lists show.
  static constexpr int kListRows = 4;
  // Makes an attribute list exactly kListRows of its rows tall, so that no row is cut.
  static void showWholeRows(QListWidget* list);

 private:
  QWidget* buildSelection();
  QWidget* buildCounters();
  QWidget* buildNumerical();
  QWidget* buildScores();
  QWidget* buildVerbal();
  QWidget* buildVerbalAlternatives();
  void addSavedJudgmentButtons(QHBoxLayout* row);
  QToolBar* buildStepToolbar(int box);
  void renderSelection(const JudgmentControls& s);
  void renderScores(const JudgmentControls& s);
  void renderJudgment(const JudgmentControls& s);
  void renderRangeLabels(const JudgmentPage& page, const AttributeModel& model);

  Controls m_c;
  // The attribute names last written into the lists.
  std::vector<std::string> m_listItems;
  // The text and selection last written into each score box.
  struct ShownBox {
    std::string text;
    int selStart = -1;
    int selLength = -1;
  };
  ShownBox m_shown[4];
};

}  // namespace tnw::tradeoffs
