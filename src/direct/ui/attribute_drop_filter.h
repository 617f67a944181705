#pragma once

// Qt
#include <QByteArray>
#include <QObject>

class QMimeData;
class QWidget;

namespace tnw::direct {

// Turns drags of attribute buttons over the widgets it watches into signals. Install it on a
// widget with watch(); drags of other kinds are left alone, so those widgets refuse them.
class AttributeDropFilter : public QObject {
  Q_OBJECT

 public:
  // A filter that watches nothing yet.
  explicit AttributeDropFilter(QObject* parent = nullptr);

  // Lets target take drops and reports the drags that reach it. When acceptDrop is false the
  // drag is only followed (for feedback) and the drop is refused.
  void watch(QWidget* target, bool acceptDrop = true);
  // The private MIME type an attribute button travels under while it is dragged.
  static QString mimeType();
  // The attribute payload of a drag's data, empty when it carries none.
  static QByteArray payloadOf(const QMimeData* data);

 signals:
  // An attribute drag entered or moved over target.
  void dragOver(QWidget* target, const QByteArray& payload);
  // An attribute was dropped on target.
  void dropped(QWidget* target, const QByteArray& payload);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tnw::direct
