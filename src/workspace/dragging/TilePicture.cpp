#include "workspace/dragging/TilePicture.h"

#include <QPainter>
#include <QPainterPath>
#include <QQuickItem>
#include <QQuickWindow>

namespace tarnloft {

QImage carriedPicture(const QImage& grabbed, const QQuickItem& item, qreal radius) {
  const QQuickWindow* window = item.window();
  if (!window) return {};
  constexpr qreal share = 0.6;  // of the view's size
  const qreal ratio = window->effectiveDevicePixelRatio();
  QImage picture((item.size() * ratio * share).toSize(), QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  picture.setDevicePixelRatio(ratio);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(share, share);
  QPainterPath edge;
  edge.addRoundedRect(QRectF(QPointF(), item.size()), radius, radius);
  painter.fillPath(edge, window->color());
  painter.setClipPath(edge);
  if (grabbed.isNull()) return picture;
  // At its own size, as a painter that shrinks an image leaves pixels out.
  const QImage small =
      grabbed.scaled(picture.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  painter.drawImage(QRectF(QPointF(), item.size()), small);
  return picture;
}

}  // namespace tarnloft
