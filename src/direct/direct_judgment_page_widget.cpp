#include "direct/direct_judgment_page_widget.h"

#include "direct/cone_area_widget.h"
#include "direct/preference_chart_widget.h"
#include "direct/status_lights_widget.h"

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

namespace tnw {
namespace {

QLabel* namedLabel(const QString& name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  return label;
}

QLineEdit* ratioBox(const QString& name, QWidget* parent) {
  auto* box = new QLineEdit(parent);
  box->setObjectName(name);
  box->setMaxLength(12);
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
  m_enter = new QPushButton(tr("&Enter"), this);
  m_enter->setObjectName(QStringLiteral("cmdEnter"));
  m_enter->setAutoDefault(false);
  m_restart = new QPushButton(tr("&Re-start All"), this);
  m_restart->setObjectName(QStringLiteral("cmdReStart"));
  m_restart->setAutoDefault(false);
  m_lights = new StatusLightsWidget(this);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(m_enter);
  buttons->addWidget(m_restart);

  auto* left = new QVBoxLayout;
  left->addWidget(buildTargetFrame());
  left->addWidget(buildRatioFrame());
  left->addLayout(buttons);
  left->addWidget(m_lights);
  left->addStretch(1);

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(left, 1);
  layout->addWidget(buildTabs(), 1);
}

QWidget* DirectJudgmentPageWidget::buildTargetFrame() {
  auto* frame = new QGroupBox(tr("Target attribute (Wj)"), this);
  frame->setObjectName(QStringLiteral("fraTarget"));
  m_targetList = new QComboBox(frame);
  m_targetList->setObjectName(QStringLiteral("imgcmbTargetAtt"));
  m_targetList->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_targetList->setMinimumContentsLength(16);
  m_targetList->setIconSize(QSize(20, 20));
  m_targetList->setMaxVisibleItems(16);
  auto* choose = new QLabel(tr("Tar&get:"), frame);
  choose->setBuddy(m_targetList);
  m_targetImage = namedLabel(QStringLiteral("imgTargetAtt"), frame);
  m_targetImage->setFixedSize(32, 32);
  m_targetName = namedLabel(QStringLiteral("lblTargetAtt"), frame);
  QFont bold = m_targetName->font();
  bold.setBold(true);
  m_targetName->setFont(bold);
  m_targetName->setWordWrap(true);
  m_targetLow = namedLabel(QStringLiteral("lblTarRangeLow"), frame);
  m_targetHigh = namedLabel(QStringLiteral("lblTarRangeHigh"), frame);
  auto* range = new QHBoxLayout;
  range->addWidget(new QLabel(tr("Score range:"), frame));
  range->addWidget(m_targetLow);
  range->addWidget(new QLabel(tr("to"), frame));
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
  auto* frame = new QGroupBox(tr("Relative importance (weight ratio Wj/Wr)"), this);
  frame->setObjectName(QStringLiteral("fraWeightRatio"));
  m_lower = ratioBox(QStringLiteral("txtWRLower"), frame);
  m_upper = ratioBox(QStringLiteral("txtWRUpper"), frame);
  auto* from = new QLabel(tr("Fro&m:"), frame);
  from->setBuddy(m_lower);
  auto* to = new QLabel(tr("T&o:"), frame);
  to->setBuddy(m_upper);
  auto* row = new QHBoxLayout(frame);
  row->addWidget(from);
  row->addWidget(m_lower);
  row->addWidget(new QLabel(QStringLiteral("/1"), frame));
  row->addSpacing(16);
  row->addWidget(to);
  row->addWidget(m_upper);
  row->addWidget(new QLabel(QStringLiteral("/1"), frame));
  row->addStretch(1);
  return frame;
}

QWidget* DirectJudgmentPageWidget::buildTabs() {
  m_tabs = new QTabWidget(this);
  m_tabs->setObjectName(QStringLiteral("tsTab"));

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

}  // namespace tnw
