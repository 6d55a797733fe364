#pragma once

namespace tarnloft {

// Whether translucent windows show what is behind them: always but on an X server on which nobody
// composes the screen. Asks it anew. Main thread.
bool isScreenComposed();

}  // namespace tarnloft
