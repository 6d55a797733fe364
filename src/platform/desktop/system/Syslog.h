#pragma once

#include "platform/SystemLog.h"

namespace tarnloft {

// Writes through syslog(3), which the journal takes up where it runs. A line break or other control
// character in the text becomes a blank.
class Syslog : public SystemLog {
 public:
  void write(const QString& text) override;
};

}  // namespace tarnloft
