#pragma once

#include "direct/ui/cone_area_widget.h"
#include "direct/ui/status_lights_widget.h"
#include "graphs/ui/chart_widget.h"
#include "tradeoffs/ui/pc_graph_widget.h"

// Qt
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QAccessibleValueInterface>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QStringList>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>
#include <QWidget>

namespace tnw::test {

// The text of an accessible role of a widget, as an assistive tool reads it.
inline QString accessibleText(QWidget* w, QAccessible::Text role) {
  QAccessibleInterface* iface = w != nullptr ? QAccessible::queryAccessibleInterface(w) : nullptr;
  return iface != nullptr ? iface->text(role) : QString();
}

// The custom-painted controls of the dialogs, which Qt knows nothing about.
// Their classes are named through their meta-objects, so a class that moves to another
// namespace is still recognised here (a class name spelt out would silently match nothing).
inline bool isCustomPainted(const QWidget* w) {
  return qobject_cast<const direct::ConeAreaWidget*>(w) != nullptr ||
         qobject_cast<const tradeoffs::PcGraphWidget*>(w) != nullptr ||
         qobject_cast<const ChartWidget*>(w) != nullptr ||
         qobject_cast<const direct::StatusLightsWidget*>(w) != nullptr;
}

// Whether a control is one the user works with: it takes input or the focus.
inline bool isInteractive(const QWidget* w) {
  if (isCustomPainted(w)) return true;
  const bool focusable = (w->focusPolicy() & Qt::TabFocus) != 0;
  if (qobject_cast<const QAbstractButton*>(w) != nullptr) return true;
  if (qobject_cast<const QLineEdit*>(w) != nullptr) return true;
  if (qobject_cast<const QComboBox*>(w) != nullptr) return true;
  if (qobject_cast<const QTabBar*>(w) != nullptr) return true;
  if (qobject_cast<const QAbstractSpinBox*>(w) != nullptr) return true;
  if (qobject_cast<const QAbstractItemView*>(w) != nullptr) return focusable;
  if (qobject_cast<const QAbstractSlider*>(w) != nullptr) return focusable;
  if (qobject_cast<const QTextEdit*>(w) != nullptr) return focusable;
  return focusable;
}

// A line naming a control in a report.
inline QString who(const QWidget* w) {
  return QStringLiteral("%1 (%2)").arg(w->objectName(),
                                       QString::fromUtf8(w->metaObject()->className()));
}

// Where an interface's children disagree with it (empty when nowhere): each child is given
// again as the same interface, knows its index, and names the interface as its parent; an index
// outside the children gives none.
inline QString childrenProblem(QAccessibleInterface* iface) {
  const int count = iface->childCount();
  if (iface->child(-1) != nullptr || iface->child(count) != nullptr) {
    return QStringLiteral("a child outside the %1 children").arg(count);
  }
  for (int i = 0; i < count; ++i) {
    QAccessibleInterface* child = iface->child(i);
    if (child == nullptr) return QStringLiteral("child %1 missing").arg(i);
    if (iface->child(i) != child) return QStringLiteral("child %1 not kept").arg(i);
    if (iface->indexOfChild(child) != i) return QStringLiteral("child %1 at another index").arg(i);
    if (child->parent() != iface) return QStringLiteral("child %1 has another parent").arg(i);
  }
  return {};
}

// What is missing in the accessible interface of a custom-painted control (empty when none).
inline QString customInterfaceProblem(QWidget* w) {
  QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(w);
  if (iface == nullptr) return QStringLiteral("no accessible interface");
  if (QAccessible::queryAccessibleInterface(w) != iface) return QStringLiteral("not kept");
  if (const QString problem = childrenProblem(iface); !problem.isEmpty()) return problem;
  if (qobject_cast<const direct::StatusLightsWidget*>(w) != nullptr) {
    return iface->text(QAccessible::Value).isEmpty() ? QStringLiteral("lamps: no state as text")
                                                     : QString();
  }
  // The control or its parts (the handles, the points) take the focus.
  bool focusable = (w->focusPolicy() & Qt::TabFocus) != 0;
  for (const QWidget* part : w->findChildren<QWidget*>()) {
    focusable = focusable || (part->focusPolicy() & Qt::TabFocus) != 0;
  }
  if (!focusable) return QStringLiteral("cannot take the focus");
  if (qobject_cast<const ChartWidget*>(w) != nullptr) {
    return iface->tableInterface() == nullptr ? QStringLiteral("chart: no table") : QString();
  }
  // The cone and the panel: two value objects (the handles, the points A and B).
  if (iface->childCount() != 2) return QStringLiteral("not two value objects");
  for (int i = 0; i < 2; ++i) {
    QAccessibleInterface* child = iface->child(i);
    if (child == nullptr || child->valueInterface() == nullptr) {
      return QStringLiteral("child %1 has no value").arg(i);
    }
    if (child->text(QAccessible::Name).isEmpty()) return QStringLiteral("child %1 no name").arg(i);
    if (!child->valueInterface()->currentValue().isValid()) {
      return QStringLiteral("child %1 value unset").arg(i);
    }
  }
  return {};
}

// The mnemonic letter of a caption ("&&" is a plain ampersand), or a null character.
inline QChar mnemonicOf(const QString& text) {
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != QLatin1Char('&')) continue;
    if (text[i + 1] != QLatin1Char('&')) return text[i + 1].toLower();
    ++i;
  }
  return {};
}

// The mnemonics that two or more visible, enabled controls of the dialog share.
inline QStringList sharedMnemonics(const QWidget* dialog) {
  QMap<QChar, QStringList> keys;
  const auto add = [&keys](const QString& text, const QString& name) {
    const QChar key = mnemonicOf(text);
    if (!key.isNull()) keys[key] << name;
  };
  for (const auto* b : dialog->findChildren<QAbstractButton*>()) {
    if (b->isVisible() && b->isEnabled()) add(b->text(), b->objectName());
  }
  for (const auto* l : dialog->findChildren<QLabel*>()) {
    const QWidget* buddy = l->buddy();
    if (l->isVisible() && buddy != nullptr && buddy->isVisible() && buddy->isEnabled()) {
      add(l->text(), buddy->objectName());
    }
  }
  for (const auto* g : dialog->findChildren<QGroupBox*>()) {
    if (g->isVisible() && g->isEnabled()) add(g->title(), g->objectName());
  }
  for (const auto* bar : dialog->findChildren<QTabBar*>()) {
    if (!bar->isVisible() || !bar->isEnabled()) continue;
    for (int i = 0; i < bar->count(); ++i) {
      if (bar->isTabEnabled(i) && bar->isTabVisible(i)) add(bar->tabText(i), bar->objectName());
    }
  }
  QStringList shared;
  for (auto it = keys.begin(); it != keys.end(); ++it) {
    if (it.value().size() > 1) {
      shared << QStringLiteral("Alt+%1 shared by %2").arg(it.key(), it.value().join(u", "));
    }
  }
  return shared;
}

// The controls that keep the focus when Tab is pressed in them.
inline QStringList focusTraps(QWidget* dialog) {
  QStringList traps;
  for (QWidget* w : dialog->findChildren<QWidget*>()) {
    if (!w->isVisible() || !w->isEnabled() || (w->focusPolicy() & Qt::TabFocus) == 0) continue;
    if (w->focusProxy() != nullptr) continue;
    w->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    if (QApplication::focusWidget() != w) continue;
    QTest::keyClick(w, Qt::Key_Tab);
    QCoreApplication::processEvents();
    if (QApplication::focusWidget() == w) traps << who(w);
  }
  return traps;
}

// Everything that keeps a dialog's present state from being usable with a screen reader or the
// keyboard alone, one line each; empty when nothing does.
inline QStringList accessibilityProblems(QWidget* dialog) {
  QStringList problems;
  for (QWidget* w : dialog->findChildren<QWidget*>()) {
    if (!w->isVisible() || !isInteractive(w)) continue;
    if (accessibleText(w, QAccessible::Name).trimmed().isEmpty()) {
      problems << QStringLiteral("no accessible name: ") + who(w);
    }
    if (const auto* bar = qobject_cast<const QTabBar*>(w)) {
      // A tab bar reads out its tabs: each tab says what it shows.
      QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(w);
      for (int i = 0; i < bar->count(); ++i) {
        QAccessibleInterface* tab = iface != nullptr ? iface->child(i) : nullptr;
        if (tab == nullptr || tab->text(QAccessible::Description).trimmed().isEmpty()) {
          problems << QStringLiteral("no accessible description: tab %1 of ").arg(i) + who(w);
        }
      }
    } else if (accessibleText(w, QAccessible::Description).trimmed().isEmpty()) {
      problems << QStringLiteral("no accessible description: ") + who(w);
    }
    if (isCustomPainted(w)) {
      const QString problem = customInterfaceProblem(w);
      if (!problem.isEmpty()) problems << who(w) + QStringLiteral(": ") + problem;
    }
  }
  problems << sharedMnemonics(dialog);
  for (const QString& trap : focusTraps(dialog)) problems << QStringLiteral("focus trap: ") + trap;
  return problems;
}

}  // namespace tnw::test
