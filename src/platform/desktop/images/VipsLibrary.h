#pragma once

namespace tarnloft {

// Starts libvips once for the process, or finds it started: one worker thread for each picture
// unless it asks for more, nothing kept between pictures, and every loader off that the library
// counts as unsafe for foreign files. Call in each thread before anything of libvips. Any thread.
// Stops the process if the library can't start.
void useVips();

}  // namespace tarnloft
