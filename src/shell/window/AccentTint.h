#pragma once

#include "controls/theme/Theme.h"
#include "library/LibraryStore.h"

namespace tarnloft {

// Keeps the interface's tint at the accent in force for the open brand and the present look.
class AccentTint : public QObject {
 public:
  // Both outlive this.
  AccentTint(LibraryStore& library, Theme& theme);

 private:
  void apply();

  LibraryStore& library_;
  Theme& theme_;
};

}  // namespace tarnloft
