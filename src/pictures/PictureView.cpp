#include "pictures/PictureView.h"

#include "pictures/PixelNode.h"

#include <QPainter>
#include <QQuickWindow>

#include <algorithm>
#include <utility>

namespace tarnloft {
namespace {

// Where the whole picture stands in a rectangle of that size, on whole pixels. A picture that is
// smaller than the rectangle by less than a pixel's worth isn't stretched to it.
QRect placed(QSize picture, QSize size, PictureView::FillMode mode) {
  QSize scaled = picture.scaled(
      size, mode == PictureView::Fill ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio);
  if (std::abs(scaled.width() - picture.width()) <= 1 &&
      std::abs(scaled.height() - picture.height()) <= 1) {
    scaled = picture;
  }
  return {QPoint((size.width() - scaled.width()) / 2, (size.height() - scaled.height()) / 2),
          scaled};
}

}  // namespace

PictureView::PictureView(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

void PictureView::setFillMode(FillMode mode) {
  if (std::exchange(fillMode_, mode) == mode) return;
  emit fillModeChanged();
  renew();
}

void PictureView::setRadius(qreal radius) {
  if (std::exchange(radius_, radius) == radius) return;
  emit radiusChanged();
  renew();
}

void PictureView::setPicture(const QImage& picture) {
  picture_ = picture;
  renew();
}

void PictureView::renew() {
  isStale_ = true;
  update();
}

qreal PictureView::pixelRatio() const {
  return window() ? window()->effectiveDevicePixelRatio() : 1;
}

QSize PictureView::pixelSize() const { return (QSizeF(width(), height()) * pixelRatio()).toSize(); }

void PictureView::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.size() == before.size()) return;
  renew();
  pixelSizeChanged();
}

void PictureView::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change != ItemDevicePixelRatioHasChanged && change != ItemSceneChange) return;
  renew();
  pixelSizeChanged();
}

QImage PictureView::drawn() const {
  const QSize size = pixelSize();
  const QRect target = placed(picture_.size(), size, fillMode_);
  const QImage scaled =
      target.size() == picture_.size()
          ? picture_
          : picture_.scaled(target.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QImage result(size, QImage::Format_ARGB32_Premultiplied);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  QBrush brush(scaled);
  brush.setTransform(QTransform::fromTranslate(target.x(), target.y()));
  painter.setBrush(brush);
  const qreal radius = radius_ * pixelRatio();
  painter.drawRoundedRect(target.intersected(QRect(QPoint(), size)), radius, radius);
  return result;
}

QSGNode* PictureView::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
  if (pixelSize().isEmpty() || isBlank()) {
    delete node;
    isStale_ = true;
    return nullptr;
  }
  auto* shown = static_cast<PixelNode*>(node);
  if (!shown) {
    shown = new PixelNode(window()->createImageNode());
    isStale_ = true;
  }
  if (std::exchange(isStale_, false)) {
    shown->setPicture(
        window()->createTextureFromImage(drawn(), QQuickWindow::TextureHasAlphaChannel),
        pixelRatio());
  }
  return shown;
}

}  // namespace tarnloft
