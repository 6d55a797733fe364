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
  m_glide.setDuration(glideTime);
  m_glide.setEasingCurve(QEasingCurve::OutCubic);
}

void WheelScroll::setFlickable(QQuickItem* flickable) {
  if (flickable == m_flickable) return;
  if (m_flickable) m_flickable->removeEventFilter(this);
  m_flickable = flickable;
  m_glide.stop();
  m_glide.setTargetObject(flickable);
  if (flickable) {
    flickable->setProperty("interactive", false);
    flickable->installEventFilter(this);
    connect(flickable, &QQuickItem::windowChanged, this, &WheelScroll::watchWindow);
    watchWindow(flickable->window());
  }
  emit flickableChanged();
}

void WheelScroll::watchWindow(QQuickWindow* window) {
  if (m_window) m_window->removeEventFilter(this);
  m_window = window;
  if (window) window->installEventFilter(this);
}

bool WheelScroll::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_flickable && event->type() == QEvent::Wheel) {
    scroll(static_cast<QWheelEvent*>(event));
    return true;
  }
  if (watched == m_window && m_flickable) {
    if (event->type() == QEvent::TouchBegin) m_flickable->setProperty("interactive", true);
    if (event->type() == QEvent::MouseButtonPress) m_flickable->setProperty("interactive", false);
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
      m_glide.state() == QAbstractAnimation::Running && m_glide.propertyName() == axis.content;
  const qreal now = number(m_flickable, axis.content);
  const qreal from = gliding && pixels == 0 ? m_glide.endValue().toReal() : now;
  const qreal to = bounded(m_flickable, axis, from - (pixels != 0 ? pixels : notches * m_notch));
  if (to == from) return gliding;
  if (pixels == 0) {
    glideTo(direction, to);
  } else {
    m_glide.stop();
    m_flickable->setProperty(axis.content, to);
  }
  return true;
}

void WheelScroll::glideTo(Qt::Orientation direction, qreal value) {
  m_glide.stop();
  m_glide.setPropertyName(axisOf(direction).content);
  m_glide.setStartValue(number(m_flickable, axisOf(direction).content));
  m_glide.setEndValue(value);
  m_glide.start();
}

}  // namespace tarnloft
