#include "common/ui/kept_panel_style.h"

#include "common/ui/kept_look_widgets.h"
#include "common/ui/kept_text.h"

// Qt
#include <QApplication>
#include <QStyleFactory>

namespace tnw {

KeptPanelStyle::KeptPanelStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

std::shared_ptr<QStyle> KeptPanelStyle::forApplicationStyle() {
  // Not owned by the application: a style of this library's would otherwise outlive its widgets
  // and be deleted with the application, perhaps after the library is gone.
  static std::weak_ptr<QStyle> shared;
  if (qApp == nullptr || !KeptText::drawsPlainItemText(QApplication::style())) return nullptr;
  std::shared_ptr<QStyle> style = shared.lock();
  if (!style) {
    style.reset(new KeptPanelStyle);
    shared = style;
  }
  return style;
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
