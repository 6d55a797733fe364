#include "shell/sidebar/SettlingOffset.h"

#include "controls/motion/Motion.h"

#include <QQmlEngine>

#include <cmath>
#include <utility>

namespace tarnloft {
namespace {

constexpr double response = 0.5;
constexpr double dampingFraction = 0.85;

}  // namespace

// The first layout is no jump; it comes in the turn of the event loop that makes the thing.
SettlingOffset::SettlingOffset(QObject* parent) : QObject(parent) {
  QMetaObject::invokeMethod(
      this, [this] { isPlaced_ = true; }, Qt::QueuedConnection);
}

void SettlingOffset::setY(double y) {
  const double jump = std::exchange(y_, y) - y;
  if (jump == 0) return;
  emit yChanged();
  if (isActive_ && isPlaced_ && std::abs(jump) >= 1) settleFrom(offset_ + jump);
}

void SettlingOffset::setActive(bool active) {
  if (std::exchange(isActive_, active) != active) emit activeChanged();
}

void SettlingOffset::settleFrom(double offset) {
  const Motion& motion = Motion::of(*qmlEngine(this));
  if (!spring_) {
    spring_ = std::make_unique<QVariantAnimation>();
    connect(spring_.get(), &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { setOffset(value.toDouble()); });
  }
  spring_->stop();
  spring_->setDuration(motion.duration(response, dampingFraction));
  spring_->setEasingCurve(motion.easing(response, dampingFraction));
  spring_->setStartValue(offset);
  spring_->setEndValue(0.0);
  spring_->start();
}

void SettlingOffset::setOffset(double offset) {
  if (std::exchange(offset_, offset) != offset) emit offsetChanged();
}

}  // namespace tarnloft
