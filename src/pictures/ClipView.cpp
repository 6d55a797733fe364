#include "pictures/ClipView.h"

#include "pictures/PixelNode.h"

#include <QQuickWindow>

#include <utility>

namespace tarnloft {

ClipView::ClipView(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

void ClipView::setPlayback(ClipPlayback* playback) {
  if (playback_ == playback) return;
  if (playback_) playback_->disconnect(this);
  playback_ = playback;
  if (playback_) connect(playback_, &ClipPlayback::pictureChanged, this, &ClipView::renew);
  tellRoom();
  renew();
  emit playbackChanged();
}

void ClipView::renew() {
  isStale_ = true;
  update();
}

qreal ClipView::pixelRatio() const { return window() ? window()->effectiveDevicePixelRatio() : 1; }

void ClipView::tellRoom() {
  const QSize room = (size() * pixelRatio()).toSize();
  if (playback_ && window() && !room.isEmpty()) playback_->setRoom(room);
}

void ClipView::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.size() == before.size()) return;
  tellRoom();
  renew();
}

void ClipView::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change != ItemDevicePixelRatioHasChanged && change != ItemSceneChange) return;
  tellRoom();
  renew();
}

QSGNode* ClipView::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
  const QImage picture = playback_ ? playback_->picture() : QImage();
  if (picture.isNull()) {
    delete node;
    return nullptr;
  }
  auto* shown = static_cast<PixelNode*>(node);
  if (!shown) {
    shown = new PixelNode(window()->createImageNode());
    isStale_ = true;
  }
  if (!std::exchange(isStale_, false)) return shown;
  const auto kind = picture.hasAlphaChannel() ? QQuickWindow::TextureHasAlphaChannel
                                              : QQuickWindow::TextureIsOpaque;
  const qreal ratio = pixelRatio();
  const QSizeF rest = size() * ratio - QSizeF(picture.size());
  const QPointF place(std::floor(rest.width() / 2), std::floor(rest.height() / 2));
  shown->setPicture(window()->createTextureFromImage(picture, kind), ratio, place / ratio);
  return shown;
}

}  // namespace tarnloft
