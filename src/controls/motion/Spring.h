#pragma once

#include <QEasingCurve>

namespace tarnloft {

// A damped spring of unit mass. `response` is the period in seconds that it would have undamped; a
// `dampingFraction` of 1 is critical, less overshoots.
struct Spring {
  double response = 0.5;
  double dampingFraction = 1;

  bool operator==(const Spring&) const = default;

  // Where its end is, seen from where it comes to rest, and the rate of that per second.
  struct State {
    double offset;
    double rate;
  };
  // The exact state so many seconds after another: x'' = -w²x - 2zwx'.
  State after(double seconds, const State& state) const;

  // Of a spring that starts at rest at 0 and settles at 1, at `time` seconds.
  double position(double time) const;
  double velocity(double time) const;

  // Seconds until that one stays within a thousandth of 1.
  double settlingTime() const;

  // That one over its settling time as an easing curve: cubic pieces with the exact positions and
  // rates at their ends. Independent of the frame rate; starts at rest.
  QEasingCurve easing() const;

 private:
  double frequency() const;  // radians a second, undamped
};

}  // namespace tarnloft
