#include "common/ui/accessibility.h"

// Qt
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QTabBar>
#include <QTableView>

// Std
#include <vector>

namespace tnw {

namespace {

// The ring's width and its distance from the control's edge, in pixels.
constexpr int kRingWidth = 2;
constexpr int kRingGap = 1;

// Whether name is base itself or an element of the control array base: base_index.
bool namesElementOf(const QString& name, const QString& base) {
  if (!name.startsWith(base)) return false;
  if (name.size() == base.size()) return true;
  if (name.size() < base.size() + 2 || name.at(base.size()) != QLatin1Char('_')) return false;
  for (qsizetype i = base.size() + 1; i < name.size(); ++i) {
    if (!name.at(i).isDigit()) return false;
  }
  return true;
}

// A label's text as read aloud: without its mnemonic marks ("&&" stands for one "&").
QString withoutMnemonics(const QString& text) {
  QString plain;
  plain.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text.at(i) != QLatin1Char('&')) {
      plain.append(text.at(i));
    } else if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('&')) {
      plain.append(QLatin1Char('&'));
      ++i;
    }
  }
  return plain;
}

}  // namespace

void setAccessibleText(QWidget* widget, const QString& name, const QString& description) {
  if (widget == nullptr) return;
  if (!name.isNull() && widget->accessibleName() != name) widget->setAccessibleName(name);
  if (widget->accessibleDescription() != description) {
    widget->setAccessibleDescription(description);
  }
}

void applyAccessibleTexts(QWidget* root, std::initializer_list<AccessibleText> texts) {
  if (root == nullptr) return;
  struct Text {
    QString objectName;
    QString name;
    QString description;
  };
  std::vector<Text> wanted;
  wanted.reserve(texts.size());
  for (const AccessibleText& t : texts) {
    wanted.push_back({QString::fromUtf8(t.objectName),
                      t.name != nullptr ? QString::fromUtf8(t.name) : QString(),
                      QString::fromUtf8(t.description)});
  }
  // One walk of the widgets, each matched against every text: a control array's elements are
  // named name_index.
  const auto apply = [&wanted](QWidget* w) {
    const QString objectName = w->objectName();
    if (objectName.isEmpty()) return;
    for (const Text& t : wanted) {
      if (namesElementOf(objectName, t.objectName)) setAccessibleText(w, t.name, t.description);
    }
  };
  for (QWidget* w : root->findChildren<QWidget*>()) apply(w);
  apply(root);
}

void nameControlsByBuddies(QWidget* root) {
  for (const QLabel* label : root->findChildren<QLabel*>()) {
    QWidget* buddy = label->buddy();
    if (buddy == nullptr || !buddy->accessibleName().isEmpty()) continue;
    QString name = withoutMnemonics(label->text()).trimmed();
    if (name.endsWith(QLatin1Char(':'))) name.chop(1);
    if (!name.isEmpty()) buddy->setAccessibleName(name);
  }
}

void describeTabs(QWidget* root, const char* barName, std::initializer_list<const char*> texts) {
  for (QTabBar* bar : root->findChildren<QTabBar*>(QString::fromUtf8(barName))) {
    int i = 0;
    for (const char* text : texts) {
      const QString tip = QString::fromUtf8(text);
      if (i < bar->count() && bar->tabToolTip(i) != tip) bar->setTabToolTip(i, tip);
      ++i;
    }
  }
}

void makeTablesTabbable(QWidget* root) {
  for (QTableView* table : root->findChildren<QTableView*>()) {
    if (table->tabKeyNavigation()) table->setTabKeyNavigation(false);
  }
}

WidgetTreeWatch::WidgetTreeWatch(QWidget* root) : QObject(root), m_root(root) {
  setObjectName(QStringLiteral("widgetTreeWatch"));
}

bool WidgetTreeWatch::changedSinceLastLook() {
  if (!m_changed) return false;
  m_changed = false;
  // Installing a filter again moves it to the front; it is not called twice.
  m_root->installEventFilter(this);
  for (QWidget* w : m_root->findChildren<QWidget*>()) w->installEventFilter(this);
  return true;
}

bool WidgetTreeWatch::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::ChildAdded &&
      static_cast<QChildEvent*>(event)->child()->isWidgetType()) {
    m_changed = true;
  }
  return false;
}

FocusRingQt* FocusRingQt::attach(QWidget* target) {
  if (target == nullptr || target->parentWidget() == nullptr) return nullptr;
  for (FocusRingQt* ring :
       target->parentWidget()->findChildren<FocusRingQt*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (ring->target() == target) return ring;
  }
  return new FocusRingQt(target);
}

FocusRingQt::FocusRingQt(QWidget* target) : QWidget(target->parentWidget()), m_target(target) {
  setObjectName(QStringLiteral("focusRing"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
  setFocusPolicy(Qt::NoFocus);
  hide();
  target->installEventFilter(this);
}

void FocusRingQt::follow() {
  const int m = kRingWidth + kRingGap;
  setGeometry(m_target->geometry().adjusted(-m, -m, m, m));
  raise();
}

bool FocusRingQt::eventFilter(QObject* watched, QEvent* event) {
  if (watched != m_target) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::FocusIn:
      follow();
      show();
      break;
    case QEvent::FocusOut:
    case QEvent::Hide:
      hide();
      break;
    case QEvent::Move:
    case QEvent::Resize:
      if (isVisible()) follow();
      break;
    default:
      break;
  }
  return false;
}

void FocusRingQt::paintEvent(QPaintEvent*) {
  QPainter p(this);
  QPen pen(palette().color(QPalette::Highlight), kRingWidth);
  pen.setJoinStyle(Qt::MiterJoin);
  p.setPen(pen);
  p.setBrush(Qt::NoBrush);
  const qreal half = kRingWidth / 2.0;
  p.drawRect(QRectF(rect()).adjusted(half, half, -half, -half));
}

void describeWizardButtons(QWidget* root) {
  applyAccessibleTexts(
      root, {{"cmdBack", nullptr, "Goes back to the previous step"},
             {"cmdNext", nullptr, "Goes on to the next step"},
             {"cmdFinish", nullptr, "Ends the wizard and hands the weights to the host"},
             {"cmdCancel", nullptr, "Ends the wizard without handing any weights to the host"},
             {"cmdHelp", nullptr, "Shows the help for this step"},
             {"cmdTNWizardHelp", nullptr, "Shows the help for this step"},
             {"cmdPrint", nullptr, "Prints the results"}});
}

}  // namespace tnw
