#pragma once

namespace tarnloft {

// The desktop's sound for what can't be done.
class Beep {
 public:
  virtual ~Beep() = default;
  virtual void sound() = 0;
};

}  // namespace tarnloft
