#pragma once

#include "model/Error.h"

namespace tarnloft {

// Whether the desktop starts the program, without a window, when the user's session begins.
class LoginItem {
 public:
  virtual ~LoginItem() = default;

  virtual bool isOn() const = 0;
  virtual Result<void> setOn(bool isOn) = 0;
};

}  // namespace tarnloft
