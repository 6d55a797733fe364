#pragma once

#include "model/Error.h"

namespace tarnloft {

// The desktop's trash, from which the user can restore.
class Trash {
 public:
  virtual ~Trash() = default;

  // Moves a file or folder there, also one on another file system than the user's own.
  virtual Result<void> moveToTrash(const QString& path) = 0;
};

}  // namespace tarnloft
