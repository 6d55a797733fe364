#pragma once

#include "platform/MotionPreference.h"
#include "platform/desktop/window/PortalSettings.h"

#include <array>
#include <vector>

namespace tarnloft {

// By the desktop's settings portal: its own key for less movement and the older ones of single
// desktops that turn animations off. Things move where none of them tells otherwise. Main thread
// only.
class DesktopMotion : public MotionPreference {
 public:
  DesktopMotion();

  void follow(std::function<void(bool reduced)> told) override;

 private:
  enum Source { common, gnome, plasma, sources };

  void ask(Source source, const char* group, const char* key,
           std::function<bool(const QVariant& value)> meansReduced);
  bool isReduced() const;

  std::array<bool, sources> reduced_{};  // by each source
  std::vector<std::function<void(bool)>> followers_;
  PortalSettings settings_;
};

}  // namespace tarnloft
