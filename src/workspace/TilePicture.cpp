#include "workspace/TilePicture.h"

#include <QPainter>
#include <QPainterPath>
#include <QQuickItem>
#include <QQuickWindow>

namespace tarnloft {

QImage pictureOf(const QQuickItem& item) {
  constexpr qreal cornerRadius = 10;
  constexpr qreal opacity = 0.85;
  QQuickWindow* window = item.window();
  if (!window) return {};
  const qreal ratio = window->effectiveDevicePixelRatio();
  const QRectF shown = item.mapRectToScene(item.boundingRect());
  const QImage whole = window->grabWindow();

  QImage picture((shown.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath edge;
  edge.addRoundedRect(QRectF(QPointF(), shown.size() * ratio), cornerRadius * ratio,
                      cornerRadius * ratio);
  painter.setClipPath(edge);
  painter.setOpacity(opacity);
  painter.drawImage(-shown.topLeft() * ratio, whole);
  painter.end();
  picture.setDevicePixelRatio(ratio);
  return picture;
}

}  // namespace tarnloft
