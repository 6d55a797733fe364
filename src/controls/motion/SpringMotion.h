#pragma once

#include "controls/motion/Spring.h"

#include <QPointF>

namespace tarnloft {

// A point on its way along a damped spring: from where it is, with the speed that it has, to a
// target that may change on the way. At any frame rate.
class SpringMotion {
 public:
  static constexpr Spring spring{.response = 0.5, .dampingFraction = 0.85};

  // Stands still there.
  void settle(const QPointF& position);
  void aim(const QPointF& target);
  // Some seconds on.
  void advance(double seconds);

  const QPointF& position() const { return position_; }
  const QPointF& target() const { return target_; }
  bool isMoving() const { return isMoving_; }

 private:
  QPointF position_;
  QPointF velocity_;  // points a second
  QPointF target_;
  bool isMoving_ = false;
};

}  // namespace tarnloft
