#include "controls/motion/Spring.h"

#include <QPointF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnloft {

double Spring::frequency() const { return 2 * std::numbers::pi / response; }

Spring::State Spring::after(double seconds, const State& state) const {
  const double w = frequency();
  const double decayRate = std::min(dampingFraction, 1.0) * w;
  const double decay = std::exp(-decayRate * seconds);
  const double push = state.rate + state.offset * decayRate;
  if (dampingFraction >= 1) {
    const double offset = decay * (state.offset + push * seconds);
    return {offset, decay * push - offset * decayRate};
  }
  const double damped = w * std::sqrt(1 - dampingFraction * dampingFraction);
  const double cosine = std::cos(damped * seconds), sine = std::sin(damped * seconds);
  const double offset = decay * (state.offset * cosine + push / damped * sine);
  return {offset, decay * (push * cosine - state.offset * damped * sine) - offset * decayRate};
}

double Spring::position(double time) const { return 1 + after(time, {-1, 0}).offset; }

double Spring::velocity(double time) const { return after(time, {-1, 0}).rate; }

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

}  // namespace tarnloft
