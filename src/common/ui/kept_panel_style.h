#pragma once

// Qt
#include <QProxyStyle>

// Std
#include <memory>

namespace tnw {

// Fusion, for the line edits that keep their panel's look (KeptLineEdit): it draws every element
// as Fusion does and hands a KeptLineEdit's panel (PE_PanelLineEdit) to the line edit, which
// copies the pixels the panel left when its inputs and the pixels under it are the same, and has
// Fusion draw it otherwise. Only the text is then drawn afresh when a line edit's text changes.
class KeptPanelStyle : public QProxyStyle {
  Q_OBJECT

 public:
  // The style the line edits of a Fusion application share, or null under another style (their
  // panels are then the application style's own). It lives as long as a line edit holds it.
  static std::shared_ptr<QStyle> forApplicationStyle();

  // Draws the element as Fusion does; a KeptLineEdit's panel through its kept look.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;

 private:
  KeptPanelStyle();
};

}  // namespace tnw
