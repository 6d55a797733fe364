#include "controls/motion/Spring.h"

#include <QPointF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnloft {

double Spring::frequency() const { return 2 * std::numbers::pi / response; }

double Spring::position(double time) const {
  const double w = frequency();
  const double decay = std::exp(-dampingFraction * w * time);
  if (dampingFraction >= 1) return 1 - decay * (1 + w * time);
  const double damped = w * std::sqrt(1 - dampingFraction * dampingFraction);
  return 1 -
         decay * (std::cos(damped * time) + dampingFraction * w / damped * std::sin(damped * time));
}

double Spring::velocity(double time) const {
  const double w = frequency();
  const double decay = std::exp(-dampingFraction * w * time);
  if (dampingFraction >= 1) return w * w * time * decay;
  const double damped = w * std::sqrt(1 - dampingFraction * dampingFraction);
  return w * w / damped * decay * std::sin(damped * time);
}

double Spring::settlingTime() const {
  constexpr double close = 1e-3;
  const double step = response / 200;
  double time = 8 * response / std::min(dampingFraction, 1.0);
  while (time > step && std::abs(1 - position(time - step)) < close) time -= step;
  return time;
}

QEasingCurve Spring::easing() const {
  constexpr int pieces = 10;        // as many as Qt's easing curves have room for
  constexpr double crowding = 1.4;  // the pieces are shorter where the spring is fast
  const double duration = settlingTime();
  QEasingCurve curve(QEasingCurve::BezierSpline);
  QPointF from;
  double leaving = 0;
  for (int piece = 1; piece <= pieces; ++piece) {
    const bool last = piece == pieces;
    const double x = last ? 1 : std::pow(static_cast<double>(piece) / pieces, crowding);
    const QPointF to(x, last ? 1 : position(x * duration));
    const double arriving = last ? 0 : velocity(x * duration) * duration;
    const double third = (to.x() - from.x()) / 3;
    curve.addCubicBezierSegment(from + QPointF(third, leaving * third),
                                to - QPointF(third, arriving * third), to);
    from = to;
    leaving = arriving;
  }
  return curve;
}

// SpringAnimation repeats v += spring * (target - x) - damping * v, x += 0.016 * v. Its remainder
// e = target - x then obeys e'' = (2 - damping - 0.016 * spring) e' - (1 - damping) e; setting both
// coefficients to those of the sampled exact solution gives the two numbers.
Spring::Steps Spring::steps() const {
  constexpr double step = 0.016;
  const double w = frequency();
  const double ratio = std::min(dampingFraction, 1.0);
  const double decay = std::exp(-ratio * w * step);
  const double turn = std::cos(w * std::sqrt(1 - ratio * ratio) * step);
  return {(1 + decay * decay - 2 * decay * turn) / step, 1 - decay * decay};
}

}  // namespace tarnloft
