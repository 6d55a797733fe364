#pragma once

#include "platform/Preferences.h"

namespace tarnloft {

// The user's wishes for the program beside its windows: read once, written at each change. Main
// thread.
class MenuBarPrefs {
 public:
  // Outlives this.
  explicit MenuBarPrefs(Preferences& store);

  // The program stays alive when its last window closes.
  bool keepRunning() const { return keepRunning_; }
  void setKeepRunning(bool keep);

 private:
  Preferences& store_;
  bool keepRunning_;
};

}  // namespace tarnloft
