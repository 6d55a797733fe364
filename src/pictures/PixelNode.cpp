#include "pictures/PixelNode.h"

#include <QSGTexture>

namespace tarnloft {

PixelNode::PixelNode(QSGImageNode* image) : image_(image) {
  setFlag(UsePreprocess);
  image->setFlag(OwnedByParent);
  image->setOwnsTexture(true);
  image->setFiltering(QSGTexture::Linear);
  appendChildNode(image);
}

void PixelNode::setPicture(QSGTexture* texture, qreal ratio, QPointF place) {
  image_->setTexture(texture);
  place_ = place;
  size_ = QSizeF(texture->textureSize()) / ratio;
  ratio_ = ratio;
  image_->setRect(QRectF(place, size_));
}

// Before each frame: the items around it may have moved without this one's knowing.
void PixelNode::preprocess() {
  const QPointF place = placeInScene() * ratio_;
  const QRectF rect(place_ + (QPointF(place.toPoint()) - place) / ratio_, size_);
  if (image_->rect() != rect) image_->setRect(rect);
}

QPointF PixelNode::placeInScene() const {
  QPointF place = place_;
  for (const QSGNode* node = parent(); node; node = node->parent()) {
    if (node->type() != TransformNodeType) continue;
    place = static_cast<const QSGTransformNode*>(node)->matrix().map(place);
  }
  return place;
}

}  // namespace tarnloft
