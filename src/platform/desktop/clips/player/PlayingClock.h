#pragma once

#include <chrono>
#include <optional>

namespace tarnloft {

// The moment of a clip that is played now, in seconds. It goes by the system's clock, and is led by
// what is heard where there is sound.
class PlayingClock {
 public:
  using Time = std::chrono::steady_clock::time_point;

  double moment() const { return moment_; }
  void set(double moment) { moment_ = moment; }

  // Time has gone on to `now`; the moment with it if it runs. `heard` is the moment that is heard
  // now, as the output tells, with the jitter that this has.
  void advance(Time now, bool runs, std::optional<double> heard);

 private:
  Time last_;
  double moment_ = 0;
};

}  // namespace tarnloft
