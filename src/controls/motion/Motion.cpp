#include "controls/motion/Motion.h"

#include <QQmlEngine>

#include <cmath>

namespace tarnloft {

Motion& Motion::of(QQmlEngine& engine) {
  if (auto* motion = engine.findChild<Motion*>(QString(), Qt::FindDirectChildrenOnly))
    return *motion;
  return *new Motion(&engine);
}

Motion* Motion::create(QQmlEngine* engine, QJSEngine* /*scripts*/) { return &of(*engine); }

void Motion::setReduced(bool reduced) {
  if (reduced_ == reduced) return;
  reduced_ = reduced;
  emit reducedChanged();
}

int Motion::duration(double response, double dampingFraction) const {
  return time(
      static_cast<int>(std::lround(Spring{response, dampingFraction}.settlingTime() * 1000)));
}

QEasingCurve Motion::easing(double response, double dampingFraction) const {
  return Spring{response, dampingFraction}.easing();
}

}  // namespace tarnloft
