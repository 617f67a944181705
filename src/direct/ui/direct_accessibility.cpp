#include "direct/ui/direct_accessibility.h"

#include "common/ui/accessibility.h"
#include "direct/core/target_list.h"
#include "direct/ui/accessible_cone.h"
#include "direct/ui/cone_area_widget.h"

// Qt
#include <QComboBox>
#include <QFrame>
#include <QWidget>

namespace tnw::direct {

namespace {

// The judged mark in front of a target's name, as the list shows it.
const QString& judgedPrefix() {
  static const QString prefix = QString::fromUtf8(TargetList::kJudgedPrefix);
  return prefix;
}

}  // namespace

DirectAccessibilityQt::DirectAccessibilityQt(QWidget* dialog) : QObject(dialog), m_dialog(dialog) {
  setObjectName(QStringLiteral("directAccessibility"));
  installDirectAccessibleInterfaces();
  if (auto* cone = dialog->findChild<ConeAreaWidget*>()) {
    new ConeKeyboardQt(cone);
    for (int i = 0; i < 2; ++i) FocusRingQt::attach(cone->handle(i));
  }
  makeTablesTabbable(dialog);
  m_widgets = new WidgetTreeWatch(dialog);
  refresh();
}

void DirectAccessibilityQt::refresh() {
  if (m_widgets->changedSinceLastLook()) describeControls();
  describeTargets();
}

void DirectAccessibilityQt::describeControls() {
  describeWizardButtons(m_dialog);
  applyAccessibleTexts(
      m_dialog,
      {{"picAttPanel", "Attributes", "The attributes still to be placed in the order"},
       {"optAttInfo", nullptr, "Shows this attribute's name, property and definition"},
       {"txtAttDefinition", "Definition", "The definition of the attribute shown"},
       {"picOrderCon", "Initial importance order",
        "The importance groups, most important first; drop an attribute on a group to place it"},
       {"picOrder", nullptr, "An importance group; press it to select it for Insert"},
       {"picOFrame", "Final importance order",
        "The attributes by importance group; choose the reference attribute among them"},
       {"txtWRLower", nullptr, "The lower end of the weight ratio Wj/Wr"},
       {"txtWRUpper", nullptr, "The upper end of the weight ratio Wj/Wr"},
       {"cmdEnter", nullptr, "Records the interval of the target attribute"},
       {"cmdReStart", nullptr, "Discards every judgment and starts again"},
       {"tsTab", "Judgment views", "Shows the preference cone or the importance order"},
       {"qt_tabwidget_tabbar", "Judgment views",
        "Shows the preference cone or the importance order"},
       {"picOrderListArea", "Importance order", "The final importance order of the attributes"},
       {"gridTN", "Weights of the attributes",
        "Low, middle and high weight of each attribute derived from the judgments"},
       {"gridExactBounds", "Exact weight bounds",
        "The exact bounds of each weight that the intervals allow"}});
  describeTabs(m_dialog, "qt_tabwidget_tabbar",
               {"The interval as a cone with two handles", "The final importance order"});
  nameControlsByBuddies(m_dialog);
}

void DirectAccessibilityQt::describeTargets() {
  if (m_targets == nullptr) {
    m_targets = m_dialog->findChild<QComboBox*>(QStringLiteral("imgcmbTargetAtt"));
  }
  QComboBox* targets = m_targets;
  if (targets == nullptr) return;
  // The judged mark is read out as "currency sign": the items carry the bare name as their
  // accessible text and "judged" as their description.
  for (int i = 0; i < targets->count(); ++i) {
    QString text = targets->itemText(i);
    const bool judged = text.startsWith(judgedPrefix());
    if (judged) text.remove(0, judgedPrefix().size());
    if (targets->itemData(i, Qt::AccessibleTextRole).toString() != text) {
      targets->setItemData(i, text, Qt::AccessibleTextRole);
    }
    const QString description = judged ? QStringLiteral("judged") : QString();
    if (targets->itemData(i, Qt::AccessibleDescriptionRole).toString() != description) {
      targets->setItemData(i, description, Qt::AccessibleDescriptionRole);
    }
  }
  const bool currentJudged = targets->currentText().startsWith(judgedPrefix());
  setAccessibleText(targets, QString(),
                    currentJudged ? QStringLiteral("judged")
                                  : QStringLiteral("The target attribute whose weight ratio is "
                                                   "judged"));
}

}  // namespace tnw::direct
