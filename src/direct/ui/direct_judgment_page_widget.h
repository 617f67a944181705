#pragma once

#include "direct/ui/final_order_widget.h"

// Qt
#include <QWidget>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;

namespace tnw::direct {

struct DirectResult;
class ConeAreaWidget;
class JudgmentPage;
class OrderingPage;
class StatusLamps;
class StatusLightsWidget;

// Step 2 of the direct method: the target choice with its score range and image, the two ratio
// boxes, Enter and Re-start All with Undo and Redo, the status lights and a tab strip with the
// preference cone and the final order. The page holds the controls; the dialog fills them and
// handles their input.
class DirectJudgmentPageWidget : public QWidget {
  Q_OBJECT

 public:
  // The page with empty controls.
  explicit DirectJudgmentPageWidget(QWidget* parent = nullptr);

  // Shows step 2's page: targets, boxes, cone, lamps and the order tab (the order's buttons
  // as step 0 shows them).
  void render(const JudgmentPage& page, const OrderingPage& ordering, const StatusLamps& lamps,
              const DirectResult& result);
  // Shows the page's buttons and the names, ranges and picture of the two attributes.
  void renderControls(const JudgmentPage& page);
  // The target list (imgcmbTargetAtt).
  QComboBox* targetList() const { return m_targetList; }
  // The target's name, score range and image (lblTargetAtt, lblTarRangeLow/High, imgTargetAtt).
  QLabel* targetName() const { return m_targetName; }
  QLabel* targetRangeLow() const { return m_targetLow; }
  QLabel* targetRangeHigh() const { return m_targetHigh; }
  QLabel* targetImage() const { return m_targetImage; }
  // The axis names of the chart (lblChartRefAtt horizontal, lblChartTarAtt vertical).
  QLabel* chartReference() const { return m_chartRef; }
  QLabel* chartTarget() const { return m_chartTarget; }
  // The ratio boxes (txtWRLower, txtWRUpper).
  QLineEdit* lowerBox() const { return m_lower; }
  QLineEdit* upperBox() const { return m_upper; }
  // The buttons (cmdEnter, cmdReStart).
  QPushButton* enterButton() const { return m_enter; }
  QPushButton* restartButton() const { return m_restart; }
  // Save and Load of the judgments (cmdSaveJudgments, cmdLoadJudgments).
  QPushButton* saveButton() const { return m_save; }
  QPushButton* loadButton() const { return m_load; }

  // Undo and Redo of Enter and Re-start All (cmdUndo, cmdRedo).
  QPushButton* undoButton() const { return m_undo; }
  QPushButton* redoButton() const { return m_redo; }
  // The drawing area (picTradeOffsRange) and the status lights (picJudgmentState).
  ConeAreaWidget* coneArea() const { return m_cone; }
  StatusLightsWidget* statusLights() const { return m_lights; }
  // The line under the status lights that says why a judgment is inconsistent or invalid
  // (lblJudgmentDiagnosis).
  QLabel* diagnosis() const { return m_diagnosis; }
  // The tab strip (tsTab) and the order shown on its second page (picOrderList).
  QTabWidget* tabs() const { return m_tabs; }
  FinalOrderWidget* orderList() const { return m_orderList; }

 private:
  QWidget* buildTargetFrame();
  QWidget* buildRatioFrame();
  QWidget* buildTabs();
  void addSavedJudgmentButtons(QHBoxLayout* row);
  void renderTargets(const JudgmentPage& page);
  void renderCone(const JudgmentPage& page);
  void renderOrderTab(const JudgmentPage& page, const OrderingPage& ordering,
                      const DirectResult& result);

  QComboBox* m_targetList = nullptr;
  QPushButton* m_save = nullptr;
  QPushButton* m_load = nullptr;
  QLabel* m_targetName = nullptr;
  QLabel* m_targetLow = nullptr;
  QLabel* m_targetHigh = nullptr;
  QLabel* m_targetImage = nullptr;
  QLabel* m_chartRef = nullptr;
  QLabel* m_chartTarget = nullptr;
  QLineEdit* m_lower = nullptr;
  QLineEdit* m_upper = nullptr;
  QPushButton* m_enter = nullptr;
  QPushButton* m_restart = nullptr;
  QPushButton* m_undo = nullptr;
  QPushButton* m_redo = nullptr;
  ConeAreaWidget* m_cone = nullptr;
  StatusLightsWidget* m_lights = nullptr;
  QLabel* m_diagnosis = nullptr;
  QTabWidget* m_tabs = nullptr;
  FinalOrderWidget* m_orderList = nullptr;
  QStringList m_itemTexts;
  QStringList m_itemImages;
  QVector<FinalOrderWidget::AttributeFace> m_orderFaces;
  QVector<int> m_orderGroups;
};

}  // namespace tnw::direct
