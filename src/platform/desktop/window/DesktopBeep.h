#pragma once

#include "platform/Beep.h"

namespace tarnloft {

// Needs a QApplication.
class DesktopBeep : public Beep {
 public:
  void sound() override;
};

}  // namespace tarnloft
