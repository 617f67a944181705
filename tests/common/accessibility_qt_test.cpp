#include "common/ui/accessibility.h"

// Qt
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace tnw {

namespace {

// A root with a button, a control array element and a panel holding a line edit.
struct Tree {
  Tree() {
    root.setObjectName(QStringLiteral("frmTest"));
    button = new QPushButton(QStringLiteral("&Enter"), &root);
    button->setObjectName(QStringLiteral("cmdEnter"));
    element = new QWidget(&root);
    element->setObjectName(QStringLiteral("picOrder_0"));
    panel = new QWidget(&root);
    panel->setObjectName(QStringLiteral("picPanel"));
    edit = new QLineEdit(panel);
    edit->setObjectName(QStringLiteral("txtScore"));
  }
  void describe() {
    applyAccessibleTexts(&root, {{"frmTest", "Test", "The test form"},
                                 {"cmdEnter", nullptr, "Records the value"},
                                 {"picOrder", nullptr, "An importance group"},
                                 {"txtScore", "Score", "The score"}});
  }
  QWidget root;
  QPushButton* button;
  QWidget* element;
  QWidget* panel;
  QLineEdit* edit;
};

}  // namespace

class AccessibilityQtTest : public QObject {
  Q_OBJECT

 private slots:
  void textsReachTheRootTheControlsAndTheElementsOfArrays() {
    Tree t;
    t.describe();
    QCOMPARE(t.root.accessibleName(), QStringLiteral("Test"));
    QCOMPARE(t.root.accessibleDescription(), QStringLiteral("The test form"));
    // A null name keeps the one Qt derives from the caption.
    QCOMPARE(t.button->accessibleName(), QString());
    QCOMPARE(t.button->accessibleDescription(), QStringLiteral("Records the value"));
    QCOMPARE(t.element->accessibleDescription(), QStringLiteral("An importance group"));
    QCOMPARE(t.edit->accessibleName(), QStringLiteral("Score"));
    // A name that only begins like an array is not one of its elements.
    auto* other = new QWidget(&t.root);
    other->setObjectName(QStringLiteral("picOrderCon"));
    t.describe();
    QCOMPARE(other->accessibleDescription(), QString());
    // An element made later, deeper in the tree, is described when the texts are given again.
    auto* later = new QWidget(t.panel);
    later->setObjectName(QStringLiteral("picOrder_12"));
    t.describe();
    QCOMPARE(later->accessibleDescription(), QStringLiteral("An importance group"));
  }

  void treeWatchSeesWidgetsAddedAnywhereUnderTheRoot() {
    Tree t;
    auto* watch = new WidgetTreeWatch(&t.root);
    QVERIFY(watch->changedSinceLastLook());
    QVERIFY(!watch->changedSinceLastLook());
    // Objects that are not widgets, and the watch's own checks, change nothing.
    new QObject(t.panel);
    QVERIFY(!watch->changedSinceLastLook());
    // A widget added deep in the tree is seen, and so is one added under it afterwards.
    auto* group = new QWidget(t.panel);
    QVERIFY(watch->changedSinceLastLook());
    QVERIFY(!watch->changedSinceLastLook());
    new QLabel(group);
    QVERIFY(watch->changedSinceLastLook());
    QVERIFY(!watch->changedSinceLastLook());
    // A widget moved in from elsewhere counts as added.
    QWidget outside;
    auto* moved = new QWidget(&outside);
    moved->setParent(&t.root);
    QVERIFY(watch->changedSinceLastLook());
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::AccessibilityQtTest)
#include "accessibility_qt_test.moc"
