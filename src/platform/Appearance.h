#pragma once

namespace tarnloft {

enum class AppearanceOverride { none, light, dark };

// The light or dark look of the application's windows.
class Appearance {
 public:
  virtual ~Appearance() = default;

  // `none` follows the desktop.
  virtual void setOverride(AppearanceOverride value) = 0;
};

}  // namespace tarnloft
