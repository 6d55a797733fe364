#pragma once

#include <functional>

namespace tarnloft {

// Whether the user wants less movement on the screen.
class MotionPreference {
 public:
  virtual ~MotionPreference() = default;

  // `told` is called at once and after each change, on the main thread, while this lives.
  virtual void follow(std::function<void(bool reduced)> told) = 0;
};

}  // namespace tarnloft
