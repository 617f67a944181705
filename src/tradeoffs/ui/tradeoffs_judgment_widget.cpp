#include "tradeoffs/ui/tradeoffs_judgment_widget.h"

#include "common/ui/elided_label_widget.h"
#include "common/ui/kept_list_widget.h"
#include "common/ui/kept_look_widgets.h"
#include "common/ui/kept_text_label.h"
#include "tradeoffs/core/judgment_controls.h"
#include "tradeoffs/ui/item_text_delegate.h"
#include "tradeoffs/ui/pc_graph_widget.h"
#include "wizard/ui/judgment_file_buttons.h"
#include "wizard/ui/undo_controls.h"

// Qt
#include <QAction>
#include <QButtonGroup>
#include <QDoubleValidator>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace tnw::tradeoffs {

namespace {

const char* const kScoreBoxNames[4] = {"txtTradeOffAFirstScore", "txtTradeOffASecondScore",
                                       "txtTradeOffBFirstScore", "txtTradeOffBSecondScore"};
const char* const kScoreBoxCaptions[4] = {"(&1):", "(&2):", "(&3):", "(&4):"};
const char* const kVerbalCaptions[7] = {"Strongly",
                                        "Moderately",
                                        "Slightly",
                                        "Indifference",
                                        "Slightly the opposite",
                                        "Moderately the opposite",
                                        "Strongly the opposite"};

// A small filled triangle for the step buttons, in the palette's text colour.
QIcon arrowIcon(bool up, const QPalette& palette) {
  QPixmap pm(10, 7);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  p.setBrush(palette.color(QPalette::ButtonText));
  const QPolygonF tri = up ? QPolygonF({QPointF(0, 7), QPointF(10, 7), QPointF(5, 1)})
                           : QPolygonF({QPointF(0, 0), QPointF(10, 0), QPointF(5, 6)});
  p.drawPolygon(tri);
  return QIcon(pm);
}

QLabel* namedLabel(const char* name, const QString& text, QWidget* parent) {
  auto* label = new KeptTextLabel(text, parent);
  label->setObjectName(QString::fromLatin1(name));
  return label;
}

// A label for an attribute's name, shortened with an ellipsis when the name is long.
QLabel* elidedLabel(const char* name, const QString& text, QWidget* parent) {
  auto* label = new ElidedLabelWidget(text, parent);
  label->setObjectName(QString::fromLatin1(name));
  return label;
}

}  // namespace

const char* TradeOffsJudgmentWidget::scoreBoxName(int box) { return kScoreBoxNames[box & 3]; }

void TradeOffsJudgmentWidget::showWholeRows(QListWidget* list) {
  // The rows' height as the list lays them out; before the list has items, a guess that the
  // first filling corrects.
  int row = list->count() > 0 ? list->sizeHintForRow(0) : 0;
  if (row <= 0) row = list->fontMetrics().height() + 4;
  list->setFixedHeight(kListRows * row + 2 * list->frameWidth());
}

TradeOffsJudgmentWidget::TradeOffsJudgmentWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("pageJudgment"));
  auto* top = new QHBoxLayout;
  top->addWidget(buildSelection(), 1);
  top->addWidget(buildCounters());

  m_c.tsComparisonApproaches = new KeptTabBar(this);
  m_c.tsComparisonApproaches->setObjectName(QStringLiteral("tsComparisonApproaches"));
  m_c.tsComparisonApproaches->addTab(tr("Numerical"));
  m_c.tsComparisonApproaches->addTab(tr("Verbal"));
  m_c.tsComparisonApproaches->setDrawBase(false);
  m_c.tsComparisonApproaches->setExpanding(false);
  m_c.approaches = new QStackedWidget(this);
  m_c.approaches->setObjectName(QStringLiteral("approaches"));
  m_c.approaches->addWidget(buildNumerical());
  m_c.approaches->addWidget(buildVerbal());
  auto* approachFrame = new KeptFrame(this);
  approachFrame->setFrameShape(QFrame::StyledPanel);
  auto* approachLayout = new QVBoxLayout(approachFrame);
  approachLayout->setContentsMargins(6, 6, 6, 6);
  approachLayout->addWidget(m_c.approaches);

  m_c.cmdTradeOffClearAll = new KeptPushButton(tr("Clear &All"), this);
  m_c.cmdTradeOffClearAll->setObjectName(QStringLiteral("cmdTradeOffClearAll"));
  m_c.cmdTradeOffEnter = new KeptPushButton(tr("&Enter"), this);
  m_c.cmdTradeOffEnter->setObjectName(QStringLiteral("cmdTradeOffEnter"));
  // Enter in a score box has its own meaning; no button of the page is the default one.
  m_c.cmdTradeOffClearAll->setAutoDefault(false);
  m_c.cmdTradeOffEnter->setAutoDefault(false);
  const UndoButtons undo =
      makeUndoButtons(this, tr("Take back the last Enter or Clear All (Ctrl+Z)"));
  m_c.cmdUndo = undo.cmdUndo;
  m_c.cmdRedo = undo.cmdRedo;
  auto* buttons = new QHBoxLayout;
  addSavedJudgmentButtons(buttons);

  buttons->addWidget(m_c.cmdUndo);
  buttons->addWidget(m_c.cmdRedo);
  buttons->addStretch(1);
  buttons->addWidget(m_c.cmdTradeOffClearAll);
  buttons->addWidget(m_c.cmdTradeOffEnter);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(top);
  layout->addSpacing(4);
  layout->addWidget(m_c.tsComparisonApproaches);
  layout->setSpacing(6);
  layout->addWidget(approachFrame, 1);
  layout->addLayout(buttons);
}

QWidget* TradeOffsJudgmentWidget::buildSelection() {
  auto* box = new KeptGroupBox(tr("Select two attributes"), this);
  box->setObjectName(QStringLiteral("framePCSelect"));
  m_c.optPCAutomatic = new KeptRadioButton(tr("Automatic"), box);
  m_c.optPCAutomatic->setObjectName(QStringLiteral("optPCAutomatic"));
  m_c.optPCManual = new KeptRadioButton(tr("Manual"), box);
  m_c.optPCManual->setObjectName(QStringLiteral("optPCManual"));
  m_c.optPCAutomatic->setChecked(true);
  m_c.lstTradeOffFirstC = new KeptListWidget(box);
  m_c.lstTradeOffFirstC->setObjectName(QStringLiteral("lstTradeOffFirstC"));
  m_c.lstTradeOffSecondC = new KeptListWidget(box);
  m_c.lstTradeOffSecondC->setObjectName(QStringLiteral("lstTradeOffSecondC"));
  // Alt+R: Alt+F is Finish's, which is enabled on this page after a visit to the results.
  auto* first = namedLabel("lblTradeOffFirst", tr("The fi&rst:"), box);
  first->setBuddy(m_c.lstTradeOffFirstC);
  auto* second = namedLabel("lblTradeOffSecond", tr("The &second:"), box);
  second->setBuddy(m_c.lstTradeOffSecondC);
  for (QListWidget* list : {m_c.lstTradeOffFirstC, m_c.lstTradeOffSecondC}) {
    list->setItemDelegate(new ItemTextDelegate(list));
    list->setUniformItemSizes(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideRight);
    showWholeRows(list);
  }

  auto* grid = new QGridLayout(box);
  auto* modes = new QVBoxLayout;
  modes->addWidget(m_c.optPCAutomatic);
  modes->addWidget(m_c.optPCManual);
  modes->addStretch(1);
  grid->addLayout(modes, 0, 0, 2, 1);
  grid->addWidget(first, 0, 1);
  grid->addWidget(second, 0, 2);
  grid->addWidget(m_c.lstTradeOffFirstC, 1, 1);
  grid->addWidget(m_c.lstTradeOffSecondC, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(2, 1);
  return box;
}

QWidget* TradeOffsJudgmentWidget::buildCounters() {
  auto* box = new KeptGroupBox(this);
  box->setObjectName(QStringLiteral("frameCounters"));
  m_c.labPCThisNum = namedLabel("labPCThisNum", QStringLiteral("1"), box);
  m_c.labPCNeccesaryNum = namedLabel("labPCNeccesaryNum", QString(), box);
  auto* grid = new QGridLayout(box);
  grid->addWidget(namedLabel("lblPCThisNum", tr("Current Tradeoff:"), box), 0, 0);
  grid->addWidget(m_c.labPCThisNum, 0, 1, Qt::AlignRight);
  grid->addWidget(namedLabel("lblPCNeccesaryNum", tr("Tradeoffs needed:"), box), 1, 0);
  grid->addWidget(m_c.labPCNeccesaryNum, 1, 1, Qt::AlignRight);
  grid->setRowStretch(2, 1);
  const int digits = fontMetrics().horizontalAdvance(QStringLiteral("8888"));
  m_c.labPCThisNum->setMinimumWidth(digits);
  m_c.labPCNeccesaryNum->setMinimumWidth(digits);
  for (QLabel* l : {m_c.labPCThisNum, m_c.labPCNeccesaryNum}) {
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
  }
  return box;
}

QWidget* TradeOffsJudgmentWidget::buildNumerical() {
  auto* frame = new QWidget(this);
  frame->setObjectName(QStringLiteral("framePCNumericalC"));
  m_c.framePCNumericalC = frame;
  m_c.framePCGraph = new PcGraphWidget(frame);
  m_c.labPCCriterion1 = elidedLabel("labPCCriterion1", tr("Attribute 1"), frame);
  m_c.labPCCriterion2 = elidedLabel("labPCCriterion2", tr("Attribute 2"), frame);
  m_c.labPCBestT = namedLabel("labPCBestT", QString(), frame);
  m_c.labPCWorstT = namedLabel("labPCWorstT", QString(), frame);
  m_c.labPCCriterion1->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  for (QLabel* l : {m_c.labPCCriterion1, m_c.labPCCriterion2}) {
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
  }
  m_c.labPCBestT->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  for (QLabel* l : {m_c.labPCBestT, m_c.labPCWorstT}) {
    QFont f = l->font();
    f.setPointSizeF(f.pointSizeF() * 0.9);
    l->setFont(f);
  }
  auto* graph = new QGridLayout;
  graph->setSpacing(2);
  graph->addWidget(m_c.labPCCriterion2, 0, 0);
  graph->addWidget(m_c.labPCBestT, 0, 1);
  graph->addWidget(m_c.framePCGraph, 1, 0, 1, 2);
  graph->addWidget(m_c.labPCWorstT, 2, 0);
  graph->addWidget(m_c.labPCCriterion1, 2, 1);
  graph->setRowStretch(1, 1);

  auto* layout = new QHBoxLayout(frame);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(graph, 1);
  layout->addSpacing(8);
  layout->addWidget(buildScores());
  return frame;
}

QToolBar* TradeOffsJudgmentWidget::buildStepToolbar(int box) {
  auto* bar = new QToolBar(this);
  bar->setObjectName(QStringLiteral("tbScoreChanger_%1").arg(box));
  bar->setOrientation(Qt::Vertical);
  bar->setIconSize(QSize(10, 7));
  bar->setFloatable(false);
  bar->setMovable(false);
  bar->setContentsMargins(0, 0, 0, 0);
  bar->setStyleSheet(QStringLiteral("QToolBar { border: 0px; padding: 0px; spacing: 0px; }"));
  m_c.stepUp[box] = bar->addAction(arrowIcon(true, palette()), tr("Up"));
  m_c.stepUp[box]->setObjectName(QStringLiteral("Up"));
  m_c.stepDown[box] = bar->addAction(arrowIcon(false, palette()), tr("Down"));
  m_c.stepDown[box]->setObjectName(QStringLiteral("Down"));
  m_c.stepUp[box]->setToolTip(tr("One hundredth of the score range up"));
  m_c.stepDown[box]->setToolTip(tr("One hundredth of the score range down"));
  m_c.tbScoreChanger[box] = bar;
  return bar;
}

QWidget* TradeOffsJudgmentWidget::buildScores() {
  auto* panel = new QWidget(this);
  panel->setObjectName(QStringLiteral("frameScores"));
  auto* grid = new QGridLayout(panel);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(4);
  grid->setVerticalSpacing(6);
  m_c.labScoreHead1 = elidedLabel("labScoreHead1", tr("Attribute 1"), panel);
  m_c.labScoreHead2 = elidedLabel("labScoreHead2", tr("Attribute 2"), panel);
  for (QLabel* l : {m_c.labScoreHead1, m_c.labScoreHead2}) {
    l->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
  }
  grid->addWidget(m_c.labScoreHead1, 0, 1, 1, 3);
  grid->addWidget(m_c.labScoreHead2, 0, 5, 1, 3);
  grid->addWidget(namedLabel("lblRowA", QStringLiteral("A"), panel), 1, 0);
  grid->addWidget(namedLabel("lblRowB", QStringLiteral("B"), panel), 2, 0);
  const int boxWidth = fontMetrics().horizontalAdvance(QStringLiteral("888,888.88")) + 12;
  // Box b sits in row 1 (A) or 2 (B) and in the first or second attribute's column group.
  for (int b = 0; b < 4; ++b) {
    const int row = b < 2 ? 1 : 2;
    const int col = (b % 2) == 0 ? 1 : 5;
    auto* edit = new KeptLineEdit(panel);
    edit->setObjectName(QString::fromLatin1(kScoreBoxNames[b]));
    edit->setAlignment(Qt::AlignRight);
    edit->setMinimumWidth(boxWidth);
    edit->setMaximumWidth(boxWidth * 3 / 2);
    auto* caption = new KeptTextLabel(QString::fromLatin1(kScoreBoxCaptions[b]), panel);
    caption->setObjectName(QStringLiteral("lblScore%1").arg(b + 1));
    caption->setBuddy(edit);
    m_c.scoreBox[b] = edit;
    grid->addWidget(caption, row, col);
    grid->addWidget(edit, row, col + 1);
    grid->addWidget(buildStepToolbar(b), row, col + 2);
  }
  grid->setColumnMinimumWidth(4, 10);
  auto* diff = namedLabel("lblTradeOffDiff", tr("Diff."), panel);
  grid->addWidget(diff, 3, 0);
  m_c.labTradeOffDiff1 = namedLabel("labTradeOffDiff1", QString(), panel);
  m_c.labTradeOffDiff2 = namedLabel("labTradeOffDiff2", QString(), panel);
  grid->addWidget(namedLabel("lblDiff1", tr("(1)-(3):"), panel), 3, 1);
  grid->addWidget(m_c.labTradeOffDiff1, 3, 2);
  grid->addWidget(namedLabel("lblDiff2", tr("(2)-(4):"), panel), 3, 5);
  grid->addWidget(m_c.labTradeOffDiff2, 3, 6);
  for (QLabel* l : {m_c.labTradeOffDiff1, m_c.labTradeOffDiff2}) {
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    l->setFrameShape(QFrame::Panel);
    l->setFrameShadow(QFrame::Sunken);
  }
  grid->setRowStretch(4, 1);
  return panel;
}

QWidget* TradeOffsJudgmentWidget::buildVerbal() {
  auto* frame = new QWidget(this);
  frame->setObjectName(QStringLiteral("framePCVerbalC"));
  m_c.framePCVerbalC = frame;
  m_c.verbalGroup = new QButtonGroup(frame);
  auto* grid = new QGridLayout(frame);
  grid->addWidget(namedLabel("lblPCVerbalQuestion", tr("Do you prefer A over B:"), frame), 0, 0, 1,
                  4);
  // The marks "-1", "-2", "-3" stand beside "Slightly", "Moderately" and "Strongly": the
  // responses those degrees record.
  for (int i = 0; i < 3; ++i) {
    auto* mark = namedLabel(qPrintable(QStringLiteral("labPCScale_%1").arg(i)),
                            QString::fromLatin1(JudgmentControls::kScaleMarks[2 - i]), frame);
    mark->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(mark, i + 1, 1);
  }
  for (int i = 0; i < 7; ++i) {
    auto* option = new KeptRadioButton(QString::fromLatin1(kVerbalCaptions[i]), frame);
    option->setObjectName(QStringLiteral("optPCVerbal_%1").arg(i));
    m_c.optPCVerbal[i] = option;
    m_c.verbalGroup->addButton(option, i);
    grid->addWidget(option, i + 1, 2);
  }
  m_c.optPCVerbal[3]->setChecked(true);
  grid->setColumnMinimumWidth(0, 12);
  grid->setColumnMinimumWidth(1, fontMetrics().horizontalAdvance(QStringLiteral("-8")) + 6);
  grid->setColumnMinimumWidth(3, 24);
  grid->addWidget(buildVerbalAlternatives(), 1, 4, 7, 1, Qt::AlignTop);
  grid->setColumnStretch(4, 2);
  grid->setColumnStretch(5, 1);
  grid->setRowStretch(8, 1);
  return frame;
}

QWidget* TradeOffsJudgmentWidget::buildVerbalAlternatives() {
  // The verbal scale hides the score boxes, so the two alternatives are repeated here.
  auto* box = new KeptGroupBox(tr("The alternatives"), this);
  box->setObjectName(QStringLiteral("framePCVerbalAlternatives"));
  auto* grid = new QGridLayout(box);
  for (int i = 0; i < 2; ++i) {
    m_c.verbalHead[i] = elidedLabel(i == 0 ? "labVerbalHead1" : "labVerbalHead2",
                                    tr("Attribute %1").arg(i + 1), box);
    m_c.verbalHead[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(m_c.verbalHead[i], 0, i + 1);
    grid->setColumnStretch(i + 1, 1);
  }
  grid->addWidget(namedLabel("lblVerbalRowA", QStringLiteral("A"), box), 1, 0);
  grid->addWidget(namedLabel("lblVerbalRowB", QStringLiteral("B"), box), 2, 0);
  const char* const names[4] = {"labVerbalA1", "labVerbalA2", "labVerbalB1", "labVerbalB2"};
  for (int b = 0; b < 4; ++b) {
    m_c.verbalScore[b] = namedLabel(names[b], QString(), box);
    m_c.verbalScore[b]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(m_c.verbalScore[b], b < 2 ? 1 : 2, (b % 2) + 1);
  }
  return box;
}

// Save and Load of the judgments, at the left of the page's own buttons; hidden until the dialog
// has a file form to offer them with.
void TradeOffsJudgmentWidget::addSavedJudgmentButtons(QHBoxLayout* row) {
  const JudgmentFileButtons buttons = addJudgmentFileButtons(
      this, row, tr("Save the recorded judgments to a file the command line reads"),
      tr("Load judgments from a file in place of the recorded ones"));
  m_c.cmdSaveJudgments = buttons.cmdSaveJudgments;
  m_c.cmdLoadJudgments = buttons.cmdLoadJudgments;
}

}  // namespace tnw::tradeoffs
