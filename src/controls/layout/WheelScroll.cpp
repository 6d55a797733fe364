#include "controls/layout/WheelScroll.h"

#include <QQuickWindow>
#include <QWheelEvent>

#include <algorithm>

namespace tarnloft {

namespace {

constexpr int glideTime = 130;  // milliseconds

struct Axis {
  const char* content;
  const char* origin;
  const char* contentSize;
  const char* size;
  const char* marginBefore;
  const char* marginAfter;
};

constexpr Axis across{"contentX", "originX", "contentWidth", "width", "leftMargin", "rightMargin"};
constexpr Axis down{"contentY", "originY", "contentHeight", "height", "topMargin", "bottomMargin"};

const Axis& axisOf(Qt::Orientation direction) {
  return direction == Qt::Horizontal ? across : down;
}

// The flickable's class is private to Qt Quick; its properties are public.
qreal number(const QQuickItem* item, const char* name) { return item->property(name).toReal(); }

// The nearest place to `value` that shows no more than the content.
qreal bounded(const QQuickItem* item, const Axis& axis, qreal value) {
  const qreal least = number(item, axis.origin) - number(item, axis.marginBefore);
  const qreal most = number(item, axis.origin) + number(item, axis.contentSize) +
                     number(item, axis.marginAfter) - number(item, axis.size);
  return std::clamp(value, least, std::max(least, most));
}

}  // namespace

WheelScroll::WheelScroll(QObject* parent) : QObject(parent) {
  glide_.setDuration(glideTime);
  glide_.setEasingCurve(QEasingCurve::OutCubic);
}

void WheelScroll::setFlickable(QQuickItem* flickable) {
  if (flickable == flickable_) return;
  if (flickable_) flickable_->removeEventFilter(this);
  flickable_ = flickable;
  glide_.stop();
  glide_.setTargetObject(flickable);
  if (flickable) {
    flickable->setProperty("interactive", false);
    flickable->installEventFilter(this);
    connect(flickable, &QQuickItem::windowChanged, this, &WheelScroll::watchWindow);
    watchWindow(flickable->window());
  }
  emit flickableChanged();
}

void WheelScroll::watchWindow(QQuickWindow* window) {
  if (window_) window_->removeEventFilter(this);
  window_ = window;
  if (window) window->installEventFilter(this);
}

bool WheelScroll::eventFilter(QObject* watched, QEvent* event) {
  if (watched == flickable_ && event->type() == QEvent::Wheel) {
    scroll(static_cast<QWheelEvent*>(event));
    return true;
  }
  if (watched == window_ && flickable_) {
    if (event->type() == QEvent::TouchBegin) flickable_->setProperty("interactive", true);
    if (event->type() == QEvent::MouseButtonPress) flickable_->setProperty("interactive", false);
  }
  return QObject::eventFilter(watched, event);
}

void WheelScroll::scroll(QWheelEvent* event) {
  constexpr qreal angleOfNotch = 120;
  const QPoint pixels = event->pixelDelta();
  const QPointF notches = QPointF(event->angleDelta()) / angleOfNotch;
  const bool movedDown = scrollAlong(Qt::Vertical, pixels.y(), notches.y());
  const bool movedAcross = scrollAlong(Qt::Horizontal, pixels.x(), notches.x());
  event->setAccepted(movedDown || movedAcross);
}

bool WheelScroll::scrollAlong(Qt::Orientation direction, qreal pixels, qreal notches) {
  const Axis& axis = axisOf(direction);
  const bool gliding =
      glide_.state() == QAbstractAnimation::Running && glide_.propertyName() == axis.content;
  const qreal now = number(flickable_, axis.content);
  const qreal from = gliding && pixels == 0 ? glide_.endValue().toReal() : now;
  const qreal to = bounded(flickable_, axis, from - (pixels != 0 ? pixels : notches * notch_));
  if (to == from) return gliding;
  if (pixels == 0) {
    glideTo(direction, to);
  } else {
    glide_.stop();
    flickable_->setProperty(axis.content, to);
  }
  return true;
}

void WheelScroll::glideTo(Qt::Orientation direction, qreal value) {
  glide_.stop();
  glide_.setPropertyName(axisOf(direction).content);
  glide_.setStartValue(number(flickable_, axisOf(direction).content));
  glide_.setEndValue(value);
  glide_.start();
}

}  // namespace tarnloft
