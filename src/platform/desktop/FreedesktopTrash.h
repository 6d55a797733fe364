#pragma once

#include "platform/Trash.h"

namespace tarnloft {

// The trash that desktops on Linux share, by the toolkit's implementation of its rules.
class FreedesktopTrash : public Trash {
 public:
  Result<void> moveToTrash(const QString& path) override;
};

}  // namespace tarnloft
