#include "platform/desktop/clips/player/PlayingClock.h"

#include <cmath>
#include <utility>

namespace tarnloft {

void PlayingClock::advance(Time now, bool runs, std::optional<double> heard) {
  constexpr double mostJitter = 0.1;  // seconds; beyond it, sound is really somewhere else
  constexpr double correction = 0.1;  // of the difference, each time
  const std::chrono::duration<double> passed = now - std::exchange(last_, now);
  if (!runs) return;
  moment_ += passed.count();
  if (!heard) return;
  const double difference = *heard - moment_;
  moment_ += std::abs(difference) > mostJitter ? difference : difference * correction;
}

}  // namespace tarnloft
