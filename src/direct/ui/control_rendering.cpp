#include "direct/ui/control_rendering.h"

#include "direct/ui/orientation_images.h"
#include "common/ui/elided_label_widget.h"

// Qt
#include <QAbstractButton>
#include <QLabel>
#include <QVariant>

namespace tnw::direct {

void renderButton(QAbstractButton* button, const wizard::ButtonState& state) {
  const QString caption = QString::fromStdString(state.caption);
  if (button->text() != caption) button->setText(caption);
  button->setVisible(state.visible);
  button->setEnabled(state.enabled);
}

void renderLabel(QLabel* label, const wizard::LabelState& state) {
  const QString caption = QString::fromStdString(state.caption);
  if (auto* elided = qobject_cast<ElidedLabelWidget*>(label)) {
    elided->setFullText(caption);
  } else if (label->text() != caption) {
    label->setText(caption);
  }
}

void renderImage(QLabel* label, const wizard::LabelState& state) {
  const QString name = QString::fromStdString(state.caption);
  if (label->property("image").toString() == name) return;
  label->setProperty("image", name);
  label->setPixmap(orientationPixmap(name, 32, label->devicePixelRatioF()));
}

}  // namespace tnw::direct
