#include "platform/desktop/window/DesktopMotion.h"

#include <algorithm>
#include <utility>

namespace tarnloft {

DesktopMotion::DesktopMotion() {
  ask(common, "org.freedesktop.appearance", "reduced-motion",
      [](const QVariant& value) { return value.toUInt() == 1; });
  ask(gnome, "org.gnome.desktop.interface", "enable-animations",
      [](const QVariant& value) { return value.isValid() && !value.toBool(); });
  ask(plasma, "org.kde.kdeglobals.KDE", "AnimationDurationFactor", [](const QVariant& value) {
    bool isNumber = false;
    return value.toDouble(&isNumber) == 0 && isNumber;  // a text, as in its file
  });
}

void DesktopMotion::follow(std::function<void(bool reduced)> told) {
  told(isReduced());
  followers_.push_back(std::move(told));
}

void DesktopMotion::ask(Source source, const char* group, const char* key,
                        std::function<bool(const QVariant& value)> meansReduced) {
  settings_.follow(QLatin1String(group), QLatin1String(key),
                   [this, source, meansReduced = std::move(meansReduced)](const QVariant& value) {
                     const bool before = isReduced();
                     reduced_.at(source) = meansReduced(value);
                     if (isReduced() == before) return;
                     for (const auto& told : followers_) told(!before);
                   });
}

bool DesktopMotion::isReduced() const {
  return std::any_of(reduced_.begin(), reduced_.end(), [](bool reduced) { return reduced; });
}

}  // namespace tarnloft
