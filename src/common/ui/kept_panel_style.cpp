#include "common/ui/kept_panel_style.h"

#include "common/ui/kept_look_widgets.h"
#include "common/ui/kept_text.h"

// Qt
#include <QApplication>
#include <QPointer>
#include <QStyleFactory>

namespace tnw {

KeptPanelStyle::KeptPanelStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

QStyle* KeptPanelStyle::forApplicationStyle() {
  static QPointer<KeptPanelStyle> shared;
  if (qApp == nullptr || !KeptText::drawsPlainItemText(QApplication::style())) return nullptr;
  if (shared.isNull()) {
    shared = new KeptPanelStyle;
    // It goes with the application, after the widgets that use it.
    shared->setParent(qApp);
  }
  return shared.data();
}

void KeptPanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                   QPainter* painter, const QWidget* widget) const {
  const auto* edit =
      element == PE_PanelLineEdit ? dynamic_cast<const KeptLineEdit*>(widget) : nullptr;
  if (edit == nullptr || option == nullptr || painter == nullptr) {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    return;
  }
  edit->paintPanel(*option, *painter,
                   [&] { QProxyStyle::drawPrimitive(element, option, painter, widget); });
}

}  // namespace tnw
