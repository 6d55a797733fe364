#pragma once

#include <QEasingCurve>

namespace tarnloft {

// A damped spring of unit mass that starts at rest at 0 and settles at 1. `response` is the period
// in seconds that it would have undamped; a `dampingFraction` of 1 is critical, less overshoots.
struct Spring {
  double response = 0.5;
  double dampingFraction = 1;

  // The exact position and its rate per second, at `time` seconds.
  double position(double time) const;
  double velocity(double time) const;

  // Seconds until it stays within a thousandth of 1.
  double settlingTime() const;

  // The spring over its settling time as an easing curve: cubic pieces with the exact positions and
  // rates at their ends. Independent of the frame rate; starts at rest.
  QEasingCurve easing() const;

  // What Qt Quick's SpringAnimation takes so that its steps of 16 ms have the decay and the
  // frequency of this spring. That one keeps its velocity when its target moves.
  struct Steps {
    double spring;
    double damping;
  };
  Steps steps() const;

 private:
  double frequency() const;  // radians a second, undamped
};

}  // namespace tarnloft
