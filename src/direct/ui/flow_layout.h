#pragma once

// Qt
#include <QLayout>
#include <QList>

namespace tnw::direct {

// A layout that places its items left to right and wraps them into as many rows as the width
// needs; the group boxes use it so that any number of attribute buttons fits.
class FlowLayout : public QLayout {
 public:
  // An empty layout with the given spacing between items (and rows).
  explicit FlowLayout(QWidget* parent = nullptr, int spacing = 4);
  ~FlowLayout() override;

  // QLayout's interface: items wrap into rows, the height follows from the width.
  void addItem(QLayoutItem* item) override;
  int count() const override;
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override;
  bool hasHeightForWidth() const override;
  int heightForWidth(int width) const override;
  QSize minimumSize() const override;
  QSize sizeHint() const override;
  void setGeometry(const QRect& rect) override;

 private:
  int doLayout(const QRect& rect, bool testOnly) const;

  QList<QLayoutItem*> m_items;
  int m_spacing = 4;
};

}  // namespace tnw::direct
