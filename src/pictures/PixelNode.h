#pragma once

#include <QPointF>
#include <QSGImageNode>
#include <QSGNode>
#include <QSizeF>

namespace tarnloft {

// A picture whose pixels are those of the screen. Where its item stands between two of them, it is
// moved by the rest, or it would be smeared over both.
class PixelNode : public QSGNode {
 public:
  // Owns the node.
  explicit PixelNode(QSGImageNode* image);

  // Owns the texture. It stands at `place` in the item; `ratio` is that of the screen's pixels to
  // points.
  void setPicture(QSGTexture* texture, qreal ratio, QPointF place = {});

  void preprocess() override;

 private:
  QPointF placeInScene() const;

  QSGImageNode* image_;
  QPointF place_;
  QSizeF size_;
  qreal ratio_ = 1;
};

}  // namespace tarnloft
