#pragma once

#include "model/Error.h"

namespace tarnloft {

// The desktop's trash, from which the user can restore.
class Trash {
 public:
  virtual ~Trash() = default;

  // Moves a file or folder there. On failure it stays whole, and the trash has no word of it: some
  // file systems have no trash. May take long on slow ones. Any thread.
  virtual Result<void> moveToTrash(const QString& path) = 0;
};

}  // namespace tarnloft
