#include "controls/motion/SpringMotion.h"

#include <cmath>

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

void SpringMotion::advance(double seconds) {
  if (!isMoving_) return;
  constexpr double closeEnough = 0.25;  // points
  constexpr double slowEnough = 10;     // points a second
  const QPointF way = position_ - target_;
  const auto [x, dx] = spring.after(seconds, {way.x(), velocity_.x()});
  const auto [y, dy] = spring.after(seconds, {way.y(), velocity_.y()});
  velocity_ = {dx, dy};
  position_ = target_ + QPointF(x, y);
  if (isSmall({x, y}, closeEnough) && isSmall(velocity_, slowEnough)) settle(target_);
}

}  // namespace tarnloft
