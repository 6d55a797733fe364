#include "pictures/HexColor.h"

#include "publish/ColorUtil.h"

namespace tarnloft {

QColor colorOf(const QString& hex) {
  const auto parsed = ColorUtil::nsColor(hex);
  if (!parsed) return {};
  return QColor::fromRgbF(float(parsed->red), float(parsed->green), float(parsed->blue),
                          float(parsed->alpha));
}

QColor shownColor(const QString& hex) {
  constexpr QRgb gray = 0xff8e8e93;
  const QColor color = colorOf(hex);
  return color.isValid() ? color : QColor(gray);
}

QString hexOf(const QColor& color) {
  return ColorUtil::hex({color.redF(), color.greenF(), color.blueF(), 1});
}

}  // namespace tarnloft
