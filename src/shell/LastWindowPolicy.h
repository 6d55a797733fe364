#pragma once

namespace tarnloft {

// The user's wish for what happens behind the last window.
enum class KeepRunning { no, yes };
// What can bring a window back while none is open.
enum class WayBack { none, tray };
enum class LastWindowPolicy { quit, hide };

// The program never hides where nothing can bring it back.
constexpr LastWindowPolicy lastWindowPolicy(KeepRunning keepRunning, WayBack wayBack) {
  return keepRunning == KeepRunning::yes && wayBack == WayBack::tray ? LastWindowPolicy::hide
                                                                     : LastWindowPolicy::quit;
}

}  // namespace tarnloft
