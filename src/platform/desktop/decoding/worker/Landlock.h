#pragma once

#include <string>
#include <vector>

namespace tarnloft::decoding::landlock {

enum class Reach {
  reading,   // files of a folder, or one file
  programs,  // reading and starting them
  writing,   // one file
};

struct Place {
  std::string path;
  Reach reach = Reach::reading;
};

// From now on this process reaches no file beneath any other place, opens no connection and signals
// nobody outside. False where the system has no such bound.
bool keepTo(const std::vector<Place>& places);

}  // namespace tarnloft::decoding::landlock
