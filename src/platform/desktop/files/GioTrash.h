#pragma once

#include "platform/Trash.h"

namespace tarnloft {

// The trash that desktops on Linux share, by GLib's implementation of its rules. Without state.
class GioTrash : public Trash {
 public:
  Result<void> moveToTrash(const QString& path) override;
};

}  // namespace tarnloft
