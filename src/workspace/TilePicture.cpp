#include "workspace/TilePicture.h"

#include <QPainter>
#include <QPainterPath>
#include <QQuickItem>
#include <QQuickWindow>

namespace tarnloft {

QImage carriedPicture(const QImage& grabbed, const QQuickItem& item, qreal radius) {
  const QQuickWindow* window = item.window();
  if (!window) return {};
  const qreal ratio = window->effectiveDevicePixelRatio();
  QImage picture((item.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  picture.setDevicePixelRatio(ratio);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath edge;
  edge.addRoundedRect(QRectF(QPointF(), item.size()), radius, radius);
  painter.fillPath(edge, window->color());
  painter.setClipPath(edge);
  painter.drawImage(QRectF(QPointF(), item.size()), grabbed);
  return picture;
}

}  // namespace tarnloft
