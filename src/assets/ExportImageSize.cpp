#include "assets/ExportImageSize.h"

#include "model/Rounding.h"

#include <limits>

namespace tarnloft {
namespace {

int wholePixels(double side) {
  constexpr double largest = std::numeric_limits<int>::max();
  return int(rounded(std::clamp(side, 1.0, largest)));
}

}  // namespace

ExportImageSize::ExportImageSize(QSizeF nativeSize)
    : native_(nativeSize),
      aspect_(nativeSize.height() > 0 ? nativeSize.width() / nativeSize.height() : 1) {
  applyScale(1);
}

void ExportImageSize::setWidth(int width) {
  width_ = qMax(1, width);
  if (lockAspect_) height_ = wholePixels(width_ / aspect_);
}

void ExportImageSize::setHeight(int height) {
  height_ = qMax(1, height);
  if (lockAspect_) width_ = wholePixels(height_ * aspect_);
}

void ExportImageSize::applyScale(double scale) {
  width_ = wholePixels(native_.width() * scale);
  height_ = wholePixels(native_.height() * scale);
}

QList<ExportPreset> ExportImageSize::presets() const {
  QList<ExportPreset> presets{
      {QStringLiteral("100%"), 1}, {QStringLiteral("50%"), 0.5}, {QStringLiteral("25%"), 0.25}};
  const double longest = qMax(native_.width(), native_.height());
  for (const int side : {2048, 1024, 512}) {
    if (side < longest) presets.append({QStringLiteral("%1px").arg(side), side / longest});
  }
  return presets;
}

}  // namespace tarnloft
