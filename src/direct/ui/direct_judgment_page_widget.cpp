#include "direct/ui/direct_judgment_page_widget.h"

#include "common/ui/elided_label_widget.h"
#include "common/ui/kept_look_widgets.h"
#include "common/ui/kept_text_label.h"
#include "common/ui/wrapped_label.h"
#include "direct/core/direct_result.h"
#include "direct/core/judgment_page.h"
#include "direct/core/ordering_page.h"
#include "direct/core/status_lamps.h"
#include "direct/ui/cone_area_widget.h"
#include "direct/ui/control_rendering.h"
#include "direct/ui/direct_view_colours.h"
#include "direct/ui/orientation_images.h"
#include "direct/ui/preference_chart_widget.h"
#include "direct/ui/ratio_box_filter.h"
#include "direct/ui/status_lights_widget.h"
#include "wizard/ui/judgment_file_buttons.h"
#include "wizard/ui/undo_controls.h"

// Qt
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tnw::direct {
namespace {

QLabel* namedLabel(const QString& name, QWidget* parent) {
  auto* label = new KeptTextLabel(parent);
  label->setObjectName(name);
  return label;
}

QLineEdit* ratioBox(const QString& name, QWidget* parent) {
  auto* box = new KeptLineEdit(parent);
  box->setObjectName(name);
  box->setAlignment(Qt::AlignRight);
  box->setAcceptDrops(false);
  box->setDragEnabled(false);
  // Pasting is blocked, so the context menu (whose Paste would bypass the key filter) is off.
  box->setContextMenuPolicy(Qt::NoContextMenu);
  box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("0000.00")) + 16);
  box->setMaximumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("000000000.00")) + 16);
  return box;
}

}  // namespace

DirectJudgmentPageWidget::DirectJudgmentPageWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picStep2"));
  m_enter = new KeptPushButton(tr("&Enter"), this);
  m_enter->setObjectName(QStringLiteral("cmdEnter"));
  m_enter->setAutoDefault(false);
  m_restart = new KeptPushButton(tr("&Re-start All"), this);
  m_restart->setObjectName(QStringLiteral("cmdReStart"));
  m_restart->setAutoDefault(false);
  m_lights = new StatusLightsWidget(this);

  const UndoButtons undo =
      makeUndoButtons(this, tr("Take back the last Enter or Re-start All (Ctrl+Z)"));
  m_undo = undo.cmdUndo;
  m_redo = undo.cmdRedo;

  auto* buttons = new QHBoxLayout;
  addSavedJudgmentButtons(buttons);

  buttons->addWidget(m_undo);
  buttons->addWidget(m_redo);
  buttons->addStretch(1);
  buttons->addWidget(m_enter);
  buttons->addWidget(m_restart);

  auto* left = new QVBoxLayout;
  left->addWidget(buildTargetFrame());
  left->addWidget(buildRatioFrame());
  left->addLayout(buttons);
  left->addWidget(m_lights);
  m_diagnosis = new WrappedLabel(this);
  m_diagnosis->setObjectName(QStringLiteral("lblJudgmentDiagnosis"));
  left->addWidget(m_diagnosis);
  left->addStretch(1);

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(left, 1);
  layout->addWidget(buildTabs(), 1);

  setTabOrder(m_targetList, m_lower);
  setTabOrder(m_lower, m_upper);
  setTabOrder(m_upper, m_enter);
  setTabOrder(m_enter, m_restart);
  setTabOrder(m_restart, m_undo);
  setTabOrder(m_undo, m_redo);
  setTabOrder(m_redo, m_tabs);
}

QWidget* DirectJudgmentPageWidget::buildTargetFrame() {
  auto* frame = new KeptGroupBox(tr("Target attribute (Wj)"), this);
  frame->setObjectName(QStringLiteral("fraTarget"));
  m_targetList = new QComboBox(frame);
  m_targetList->setObjectName(QStringLiteral("imgcmbTargetAtt"));
  m_targetList->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_targetList->setMinimumContentsLength(16);
  m_targetList->setIconSize(QSize(20, 20));
  m_targetList->setMaxVisibleItems(16);
  auto* choose = new KeptTextLabel(tr("Tar&get:"), frame);
  choose->setBuddy(m_targetList);
  m_targetImage = namedLabel(QStringLiteral("imgTargetAtt"), frame);
  m_targetImage->setFixedSize(32, 32);
  m_targetName = new WrappedLabel(frame);
  m_targetName->setObjectName(QStringLiteral("lblTargetAtt"));
  QFont bold = m_targetName->font();
  bold.setBold(true);
  m_targetName->setFont(bold);
  m_targetLow = namedLabel(QStringLiteral("lblTarRangeLow"), frame);
  m_targetHigh = namedLabel(QStringLiteral("lblTarRangeHigh"), frame);
  auto* range = new QHBoxLayout;
  range->addWidget(new KeptTextLabel(tr("Score range:"), frame));
  range->addWidget(m_targetLow);
  range->addWidget(new KeptTextLabel(tr("to"), frame));
  range->addWidget(m_targetHigh);
  range->addStretch(1);
  auto* grid = new QGridLayout(frame);
  grid->addWidget(choose, 0, 0);
  grid->addWidget(m_targetList, 0, 1, 1, 2);
  grid->addWidget(m_targetImage, 1, 0, 2, 1, Qt::AlignCenter);
  grid->addWidget(m_targetName, 1, 1, 1, 2);
  grid->addLayout(range, 2, 1, 1, 2);
  grid->setColumnStretch(2, 1);
  return frame;
}

QWidget* DirectJudgmentPageWidget::buildRatioFrame() {
  auto* frame = new KeptGroupBox(tr("Relative importance (weight ratio Wj/Wr)"), this);
  frame->setObjectName(QStringLiteral("fraWeightRatio"));
  m_lower = ratioBox(QStringLiteral("txtWRLower"), frame);
  m_upper = ratioBox(QStringLiteral("txtWRUpper"), frame);
  auto* from = new KeptTextLabel(tr("Fro&m:"), frame);
  from->setBuddy(m_lower);
  auto* to = new KeptTextLabel(tr("T&o:"), frame);
  to->setBuddy(m_upper);
  auto* row = new QHBoxLayout(frame);
  row->addWidget(from);
  row->addWidget(m_lower);
  row->addWidget(new KeptTextLabel(QStringLiteral("/1"), frame));
  row->addSpacing(16);
  row->addWidget(to);
  row->addWidget(m_upper);
  row->addWidget(new KeptTextLabel(QStringLiteral("/1"), frame));
  row->addStretch(1);
  return frame;
}

QWidget* DirectJudgmentPageWidget::buildTabs() {
  m_tabs = new KeptTabWidget(this);
  m_tabs->setObjectName(QStringLiteral("tsTab"));
  // Without scroll buttons the tab strip asks for room for both tabs, so none is cut at 200 %.
  m_tabs->setUsesScrollButtons(false);

  auto* graph = new PreferenceChartWidget;
  m_cone = graph->coneArea();
  m_chartTarget = graph->targetAxis();
  m_chartRef = graph->referenceAxis();

  auto* orderTab = new QWidget;
  orderTab->setObjectName(QStringLiteral("picOrderTab"));
  m_orderList =
      new FinalOrderWidget({QStringLiteral("picOrderListArea"), QStringLiteral("picOrderList"),
                            QStringLiteral("picOrderGrp"), QStringLiteral("lblOrderGrp"),
                            QStringLiteral("cmdAttBtn"), QStringLiteral("vscrbOrderList")},
                           orderTab);
  auto* orderLayout = new QVBoxLayout(orderTab);
  orderLayout->addWidget(m_orderList);

  m_tabs->addTab(graph, tr("&Preference cone"));
  m_tabs->addTab(orderTab, tr("Importance or&der"));
  return m_tabs;
}

void DirectJudgmentPageWidget::render(const JudgmentPage& page, const OrderingPage& ordering,
                                      const StatusLamps& lamps, const DirectResult& result) {
  renderTargets(page);
  for (const auto box : {JudgmentPage::Box::Lower, JudgmentPage::Box::Upper}) {
    QLineEdit* edit = box == JudgmentPage::Box::Lower ? m_lower : m_upper;
    // The caret is only moved when the text changed under it.
    if (edit->text().toStdString() != page.box(box).text) {
      RatioBoxFilter::showBoxState(edit, page.box(box));
    }
  }
  renderCone(page);
  for (int i = 0; i < 3; ++i) {
    m_lights->setLamp(i, colourFromBgr(lamps.lampColor(i)), lamps.labelHighlighted(i),
                      colourFromBgr(lamps.labelTextColor(i)));
  }
  const QString why = QString::fromStdString(page.diagnosis().text);
  if (m_diagnosis->text() != why) m_diagnosis->setText(why);
  renderOrderTab(page, ordering, result);
}

void DirectJudgmentPageWidget::renderControls(const JudgmentPage& page) {
  renderButton(m_enter, page.cmdEnter());
  renderButton(m_restart, page.cmdReStart());
  renderLabel(m_targetName, page.lblTargetAtt());
  renderLabel(m_targetLow, page.lblTarRangeLow());
  renderLabel(m_targetHigh, page.lblTarRangeHigh());
  renderImage(m_targetImage, page.imgTargetAtt());
  renderLabel(m_chartRef, page.lblChartRefAtt());
  renderLabel(m_chartTarget, page.lblChartTarAtt());
}

void DirectJudgmentPageWidget::renderTargets(const JudgmentPage& page) {
  const TargetList& targets = page.targets();
  const int selected = targets.selectedIndex();
  QStringList texts;
  QStringList images;
  for (int i = 0; i < static_cast<int>(targets.items().size()); ++i) {
    const auto& item = targets.items()[static_cast<std::size_t>(i)];
    texts.append(QString::fromStdString(item.text));
    images.append(QString::fromStdString(i == selected ? item.selectedImage : item.image));
  }
  const QSignalBlocker block(m_targetList);
  if (texts != m_itemTexts || images.size() != m_itemImages.size()) {
    m_targetList->clear();
    for (int i = 0; i < texts.size(); ++i) m_targetList->addItem(texts[i]);
    m_itemTexts = texts;
    m_itemImages = QStringList();
    for (int i = 0; i < texts.size(); ++i) m_itemImages.append(QString());
  }
  for (int i = 0; i < images.size(); ++i) {
    if (images[i] == m_itemImages[i]) continue;
    m_targetList->setItemIcon(i, orientationIcon(images[i]));
    m_itemImages[i] = images[i];
  }
  if (m_targetList->currentIndex() != selected) m_targetList->setCurrentIndex(selected);
}

void DirectJudgmentPageWidget::renderCone(const JudgmentPage& page) {
  m_cone->setAreaSide(page.cone().side());
  const RegionHandles& h = page.handles();
  m_cone->setHandlePosition(0, QPointF(h.first.x, h.first.y));
  m_cone->setHandlePosition(1, QPointF(h.second.x, h.second.y));
  const bool hasTarget = page.targets().currentTarget() >= 0;
  m_cone->setHandlesVisible(hasTarget);
  QPolygonF triangle;
  if (hasTarget) {
    for (const IntPoint& p : page.coneTriangle()) triangle << QPointF(p.x, p.y);
  }
  m_cone->setCone(triangle);
}

void DirectJudgmentPageWidget::renderOrderTab(const JudgmentPage& page,
                                              const OrderingPage& ordering,
                                              const DirectResult& result) {
  m_tabs->setTabEnabled(1, page.orderTabVisible());
  if (!page.orderTabVisible()) return;
  const int n = static_cast<int>(ordering.attributeButtons().size());
  QVector<FinalOrderWidget::AttributeFace> faces;
  for (int i = 0; i < n; ++i) {
    const auto b = ordering.referenceButton(i);
    faces.append({QString::fromStdString(b.caption), colourFromBgr(b.faceColor)});
  }
  QVector<int> groupOf(n, 0);
  for (int k = 1; k <= result.FinalGroupCount; ++k) {
    for (const int i : page.orderGroup(k)) {
      if (i >= 0 && i < n) groupOf[i] = k;
    }
  }
  const bool rebuilt = faces != m_orderFaces;
  if (rebuilt) {
    m_orderFaces = faces;
    m_orderList->setAttributes(faces);
  }
  if (rebuilt || groupOf != m_orderGroups) {
    m_orderGroups = groupOf;
    m_orderList->setOrder(result.FinalGroupCount, groupOf);
  }
}

// Save and Load of the judgments, at the left of Enter and Re-start All; hidden until the dialog
// has a file form to offer them with.
void DirectJudgmentPageWidget::addSavedJudgmentButtons(QHBoxLayout* row) {
  const JudgmentFileButtons buttons = addJudgmentFileButtons(
      this, row,
      tr("Save the order, the reference and the intervals to a file the command line reads"),
      tr("Load intervals from a file in place of the ones given"));
  m_save = buttons.cmdSaveJudgments;
  m_load = buttons.cmdLoadJudgments;
}

}  // namespace tnw::direct
