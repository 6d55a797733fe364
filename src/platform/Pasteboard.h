#pragma once

#include <QString>

namespace tarnloft {

// The desktop's clipboard. Main thread.
class Pasteboard {
 public:
  virtual ~Pasteboard() = default;

  // Replaces what is on it.
  virtual void setText(const QString& text) = 0;
};

}  // namespace tarnloft
