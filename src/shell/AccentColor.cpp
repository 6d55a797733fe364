#include "shell/AccentColor.h"

#include "publish/ColorUtil.h"

namespace tarnloft {

QColor accentColor(const QString& hex) {
  const auto color = ColorUtil::nsColor(hex);
  if (!color) return Qt::gray;
  return QColor::fromRgbF(float(color->red), float(color->green), float(color->blue),
                          float(color->alpha));
}

std::optional<QColor> accentColor(const std::optional<QString>& hex) {
  return hex ? std::optional(accentColor(*hex)) : std::nullopt;
}

}  // namespace tarnloft
