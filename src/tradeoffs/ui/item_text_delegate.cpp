#include "tradeoffs/ui/item_text_delegate.h"

// Qt
#include <QApplication>
#include <QImage>
#include <QListView>
#include <QPaintEngine>
#include <QPainter>
#include <QStyle>

// Std
#include <cmath>

namespace tnw::tradeoffs {

namespace {

// The cache holds the texts of one dialog's lists and grids; it is emptied when it grows past
// them, as when the model changes.
constexpr qsizetype kMostTexts = 512;
// The kept images of one view: about the cells of a few screens of a grid.
constexpr int kMostImages = 2048;

// Where `rect` lies on the image the painter draws on (a widget's backing store, or an image),
// when that is a 32-bit image at one device pixel per pixel, moved by whole pixels and not clipped
// inside `rect`, without opacity or another composition: an empty rectangle otherwise.
QRect deviceRect(const QPainter& painter, const QRect& rect) {
  QPaintEngine* engine = painter.paintEngine();
  // A widget's painter draws on its backing store: the engine's device.
  const QPaintDevice* device = engine != nullptr ? engine->paintDevice() : nullptr;
  const QTransform& transform = painter.deviceTransform();
  if (engine == nullptr || engine->type() != QPaintEngine::Raster || device == nullptr ||
      device->devType() != QInternal::Image || transform.type() > QTransform::TxTranslate ||
      painter.opacity() != 1.0 ||
      painter.compositionMode() != QPainter::CompositionMode_SourceOver) {
    return {};
  }
  const auto* image = static_cast<const QImage*>(device);
  if (image->format() != QImage::Format_RGB32 &&
      image->format() != QImage::Format_ARGB32_Premultiplied) {
    return {};
  }
  const QRect onDevice = rect.translated(qRound(transform.dx()), qRound(transform.dy()));
  if (transform.dx() != std::round(transform.dx()) ||
      transform.dy() != std::round(transform.dy()) || !image->rect().contains(onDevice) ||
      (painter.hasClipping() && !painter.clipRegion().contains(rect))) {
    return {};
  }
  const QRegion system = engine->systemClip();
  if (!system.isEmpty() && system.intersected(onDevice) != QRegion(onDevice)) return {};
  return onDevice;
}

}  // namespace

KeptSizeDelegate::KeptSizeDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

KeptSizeDelegate::ItemLook KeptSizeDelegate::ItemLook::of(const QStyleOptionViewItem& opt) {
  ItemLook look;
  look.font = opt.font;
  look.size = opt.rect.size();
  look.features = static_cast<int>(opt.features);
  look.alignment = static_cast<int>(opt.displayAlignment);
  look.state = static_cast<int>(opt.state);
  look.decorationSize = opt.decorationSize;
  look.decorationPosition = static_cast<int>(opt.decorationPosition);
  look.elideMode = static_cast<int>(opt.textElideMode);
  look.direction = static_cast<int>(opt.direction);
  look.palette = opt.palette.cacheKey();
  look.base = opt.palette.color(QPalette::Base).rgba();
  look.style = opt.widget != nullptr ? opt.widget->style() : QApplication::style();
  return look;
}

bool KeptSizeDelegate::ItemLook::operator==(const ItemLook& other) const {
  return size == other.size && features == other.features && alignment == other.alignment &&
         state == other.state && decorationSize == other.decorationSize &&
         decorationPosition == other.decorationPosition && elideMode == other.elideMode &&
         direction == other.direction && palette == other.palette && base == other.base &&
         style == other.style && font == other.font;
}

QSize KeptSizeDelegate::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  QStyleOptionViewItem opt = option;
  initStyleOption(&opt, index);
  const bool keepable = !index.data(Qt::SizeHintRole).isValid() && opt.icon.isNull() &&
                        !(opt.features & QStyleOptionViewItem::HasCheckIndicator);
  if (!keepable) {
    ++m_measured;
    return QStyledItemDelegate::sizeHint(option, index);
  }
  if (m_sizes.size() > kMostTexts) m_sizes.clear();
  Kept key{ItemLook::of(opt), {}};
  std::vector<Kept>& kept = m_sizes[opt.text];
  for (const Kept& k : kept) {
    if (k.look == key.look) return k.size;
  }
  ++m_measured;
  key.size = QStyledItemDelegate::sizeHint(option, index);
  kept.push_back(key);
  return key.size;
}

ItemTextDelegate::ItemTextDelegate(QObject* parent, bool gridLines)
    : KeptSizeDelegate(parent), m_gridLines(gridLines) {}

const QStaticText& ItemTextDelegate::laidOut(const QString& text, const QFont& font) const {
  if (font != m_font || m_texts.size() > kMostTexts) {
    m_texts.clear();
    m_font = font;
  }
  auto it = m_texts.find(text);
  if (it == m_texts.end()) {
    QStaticText laid(text);
    laid.setTextFormat(Qt::PlainText);
    laid.prepare(QTransform(), font);
    it = m_texts.insert(text, laid);
  }
  return *it;
}

QSize ItemTextDelegate::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  QSize size = KeptSizeDelegate::sizeHint(option, index);
  // In a list, an item asks for no width of its own: it takes the view's width and a long
  // text is elided to it, instead of widening the rows past the view where they are cut. A list
  // that wraps its texts gets them wrapped at the width the style measured them for.
  const auto* list = qobject_cast<const QListView*>(option.widget);
  if (list != nullptr && !list->wordWrap()) size.setWidth(1);
  return size;
}

void ItemTextDelegate::drawGridLines(QPainter* painter, const QStyleOptionViewItem& opt,
                                     const QRect& rect) const {
  const QWidget* widget = opt.widget;
  const QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
  const QColor grid = QColor::fromRgba(
      static_cast<QRgb>(style->styleHint(QStyle::SH_Table_GridLineColor, &opt, widget)));
  painter->fillRect(QRect(rect.right(), rect.top(), 1, rect.height()), grid);
  painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), grid);
}

bool ItemTextDelegate::paintKept(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index, QStyleOptionViewItem& opt,
                                 const QStaticText* text) const {
  // Only an item drawn on the view's plain background (or its row's alternate colour) can be
  // painted ahead, and only for a raster painter that copies the image pixel for pixel.
  const bool plain = !(opt.state & (QStyle::State_Selected | QStyle::State_HasFocus)) &&
                     opt.backgroundBrush.style() == Qt::NoBrush && opt.icon.isNull() &&
                     !(opt.features & QStyleOptionViewItem::HasCheckIndicator);
  const QPaintEngine* engine = painter->paintEngine();
  const QTransform& transform = painter->transform();
  if (!plain || engine == nullptr || engine->type() != QPaintEngine::Raster ||
      transform.type() > QTransform::TxTranslate || transform.dx() != std::round(transform.dx()) ||
      transform.dy() != std::round(transform.dy()) || opt.rect.isEmpty()) {
    return false;
  }
  KeptImage key{ItemLook::of(opt), painter->device()->devicePixelRatioF(), {}};
  const auto found = m_images.constFind(opt.text);
  if (found != m_images.cend()) {
    for (const KeptImage& k : *found) {
      if (k.pixelRatio == key.pixelRatio && k.look == key.look) {
        painter->drawPixmap(opt.rect.topLeft(), k.image);
        return true;
      }
    }
  }
  if (m_imageCount >= kMostImages) {
    // Past what a dialog's views show at once: the images are painted again as needed.
    m_images.clear();
    m_imageCount = 0;
  }
  // Drawn on a widget's backing store with nothing clipped, over the view's opaque plain
  // background, the item's pixels are kept as the view shows them; the view has drawn its row's
  // panel under it, as later paints do.
  const QBrush& base = opt.palette.brush(QPalette::Base);
  const QRect onDevice = base.style() == Qt::SolidPattern && base.color().alpha() == 255
                             ? deviceRect(*painter, opt.rect)
                             : QRect();
  if (!onDevice.isEmpty()) {
    drawItem(painter, option, index, opt, text);
    const auto* image = static_cast<const QImage*>(painter->paintEngine()->paintDevice());
    key.image = QPixmap::fromImage(image->copy(onDevice));
    ++m_imagesPainted;
    ++m_imageCount;
    m_images[opt.text].push_back(std::move(key));
    return true;
  }
  // Elsewhere the item is drawn as it would be on the view, on the view's background.
  const QRect at(QPoint(0, 0), opt.rect.size());
  key.image = QPixmap(at.size() * key.pixelRatio);
  key.image.setDevicePixelRatio(key.pixelRatio);
  key.image.fill(QColor::fromRgba(key.look.base));
  {
    QPainter p(&key.image);
    QStyleOptionViewItem movedOption = option;
    movedOption.rect = at;
    QStyleOptionViewItem moved = opt;
    moved.rect = at;
    // Under the item, the row's panel as the view draws it: the alternate rows' colour.
    if (opt.features & QStyleOptionViewItem::Alternate) {
      const QWidget* widget = opt.widget;
      const QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
      style->drawPrimitive(QStyle::PE_PanelItemViewRow, &movedOption, &p, widget);
    }
    drawItem(&p, movedOption, index, moved, text);
  }
  ++m_imagesDrawnApart;
  ++m_imagesPainted;
  ++m_imageCount;
  std::vector<KeptImage>& kept = m_images[opt.text];
  kept.push_back(std::move(key));
  painter->drawPixmap(opt.rect.topLeft(), kept.back().image);
  return true;
}

void ItemTextDelegate::drawItem(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index, QStyleOptionViewItem& opt,
                                const QStaticText* text) const {
  ++m_itemsDrawn;
  if (m_gridLines) drawGridLines(painter, opt, opt.rect);
  if (text == nullptr) {
    QStyledItemDelegate::paint(painter, option, index);
    return;
  }
  const QWidget* widget = opt.widget;
  QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
  // The selection, a cell's own background and the focus frame as the style draws them; a plain
  // item has none of them (the view has drawn the row's background).
  if ((opt.state & (QStyle::State_Selected | QStyle::State_HasFocus)) ||
      opt.backgroundBrush.style() != Qt::NoBrush) {
    opt.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, widget);
  }
  const QPalette::ColorGroup group = !(opt.state & QStyle::State_Enabled)  ? QPalette::Disabled
                                     : !(opt.state & QStyle::State_Active) ? QPalette::Inactive
                                                                           : QPalette::Normal;
  const QPalette::ColorRole role =
      (opt.state & QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
  const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, widget) + 1;
  const QRect textRect = opt.rect.adjusted(margin, 0, -margin, 0);
  const QRect placed =
      QStyle::alignedRect(opt.direction, opt.displayAlignment, text->size().toSize(), textRect);
  painter->save();
  painter->setPen(opt.palette.color(group, role));
  painter->setFont(opt.font);
  painter->drawStaticText(placed.topLeft(), *text);
  painter->restore();
}

void ItemTextDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  QStyleOptionViewItem opt = option;
  initStyleOption(&opt, index);
  const QWidget* widget = opt.widget;
  const QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
  const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, widget) + 1;
  // The style wraps the texts of a view that wraps them, and elides a text too long for its
  // cell as the view's elide mode says; the other texts are drawn here from their kept layouts.
  const bool wrapped = !opt.icon.isNull() || (opt.features & QStyleOptionViewItem::WrapText) != 0;
  const QStaticText* text = wrapped ? nullptr : &laidOut(opt.text, opt.font);
  if (text != nullptr && text->size().width() > opt.rect.width() - 2 * margin) text = nullptr;
  if (paintKept(painter, option, index, opt, text)) return;
  drawItem(painter, option, index, opt, text);
}

}  // namespace tnw::tradeoffs
