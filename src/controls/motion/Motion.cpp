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
  return time(curve({response, dampingFraction}).milliseconds);
}

QEasingCurve Motion::easing(double response, double dampingFraction) const {
  return curve({response, dampingFraction}).easing;
}

const Motion::Curve& Motion::curve(const Spring& spring) const {
  for (const Curve& known : curves_)
    if (known.spring == spring) return known;
  const int milliseconds = static_cast<int>(std::lround(spring.settlingTime() * 1000));
  return curves_.emplace_back(Curve{spring, milliseconds, spring.easing()});
}

}  // namespace tarnloft
