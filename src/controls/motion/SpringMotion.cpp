#include "controls/motion/SpringMotion.h"

#include <cmath>
#include <numbers>

namespace tarnloft {
namespace {

bool isSmall(const QPointF& point, double limit) {
  return std::abs(point.x()) < limit && std::abs(point.y()) < limit;
}

}  // namespace

void SpringMotion::settle(const QPointF& position) {
  position_ = target_ = position;
  velocity_ = {};
  isMoving_ = false;
}

void SpringMotion::aim(const QPointF& target) {
  target_ = target;
  isMoving_ = target_ != position_ || isMoving_;
}

// The exact solution of x'' = -w²x - 2zwx' for the way x that is left.
void SpringMotion::advance(double seconds) {
  if (!isMoving_) return;
  constexpr double closeEnough = 0.25;  // points
  constexpr double slowEnough = 10;     // points a second
  constexpr double w = 2 * std::numbers::pi / response;
  constexpr double decayRate = dampingFraction * w;
  const double damped = w * std::sqrt(1 - dampingFraction * dampingFraction);
  const double decay = std::exp(-decayRate * seconds);
  const double cosine = std::cos(damped * seconds), sine = std::sin(damped * seconds);
  const QPointF way = position_ - target_;
  const QPointF swing = (velocity_ + way * decayRate) / damped;
  const QPointF rest = decay * (way * cosine + swing * sine);
  velocity_ = decay * (swing * damped * cosine - way * damped * sine) - rest * decayRate;
  position_ = target_ + rest;
  if (isSmall(rest, closeEnough) && isSmall(velocity_, slowEnough)) settle(target_);
}

}  // namespace tarnloft
