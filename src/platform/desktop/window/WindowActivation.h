#pragma once

namespace tarnloft {

// On Wayland a window comes forward by a token of whoever had the keyboard, which the environment
// hands on. Where nobody handed one on, has the next window that asks use one that the compositor
// gives to anybody: the desktop then decides whether it raises the window or marks it. The
// toolkit's own is bound to a window that had no part in the wish, and refused. Main thread.
void allowActivation();

}  // namespace tarnloft
