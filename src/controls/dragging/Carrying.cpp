#include "controls/dragging/Carrying.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>

namespace tarnloft {
namespace {

constexpr qreal share = 0.6;         // of the view's size
constexpr QPoint hotSpot{-14, -10};  // right of the pointer and below it

// On Wayland the window system's drag takes the release away, without which its handler would go on
// at the next press, wherever that is.
void endPress(QQuickWindow& window) {
  constexpr QPointF outside(-1, -1);
  for (const QInputDevice* const device : QInputDevice::devices()) {
    const auto* const pointer = qobject_cast<const QPointingDevice*>(device);
    if (!pointer || pointer->type() == QInputDevice::DeviceType::TouchScreen) continue;
    QMouseEvent release(QEvent::MouseButtonRelease, outside, window.mapToGlobal(outside),
                        Qt::LeftButton, Qt::NoButton, {}, pointer);
    QCoreApplication::sendEvent(&window, &release);
  }
}

// Nothing of it but its corners is translucent. Null for an item without a window.
QImage carriedPicture(const QImage& grabbed, const QQuickItem& item, qreal radius) {
  const QQuickWindow* window = item.window();
  if (!window) return {};
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

}  // namespace

void carryOut(QQuickItem& view, const QImage& grabbed, qreal radius,
              const std::function<void(const DragLook&)>& drag) {
  const QPointer<QQuickWindow> window(view.window());
  const QImage picture = carriedPicture(grabbed, view, radius);
  drag({picture, hotSpot});
  if (window) endPress(*window);
}

}  // namespace tarnloft
