#pragma once

namespace tarnloft {

// Takes from this process what drawing doesn't need, for good: memory beyond a bound, the network,
// other programs, writing to files. False if the system refuses.
bool confine();

// From now on this process may use the processor for so long; then the system ends it.
void limitProcessorTime(int seconds);

}  // namespace tarnloft
