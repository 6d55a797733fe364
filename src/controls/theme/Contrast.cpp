#include "controls/theme/Contrast.h"

#include <algorithm>
#include <cmath>

namespace tarnloft {

namespace {

double linear(double component) {
  return component <= 0.03928 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

}  // namespace

double relativeLuminance(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

double contrastRatio(const QColor& foreground, const QColor& background) {
  const double first = relativeLuminance(over(foreground, background));
  const double second = relativeLuminance(background);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor over(const QColor& foreground, const QColor& background) {
  QColor opaque = foreground;
  opaque.setAlphaF(1);
  return mixed(background, opaque, foreground.alphaF());
}

QColor mixed(const QColor& first, const QColor& second, double amount) {
  const auto mix = [amount](double a, double b) { return a + (b - a) * amount; };
  return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                          mix(first.blueF(), second.blueF()), mix(first.alphaF(), second.alphaF()));
}

QColor textOn(const QColor& fill) {
  constexpr double enough = 4.5;
  return contrastRatio(Qt::white, fill) >= enough ? Qt::white : Qt::black;
}

QColor readableOn(const QColor& color, const QColor& background, double ratio) {
  const QColor end = relativeLuminance(background) > 0.18 ? Qt::black : Qt::white;
  constexpr int steps = 50;
  for (int step = 0; step < steps; ++step) {
    const QColor candidate = mixed(color, end, static_cast<double>(step) / steps);
    if (contrastRatio(candidate, background) >= ratio) return candidate;
  }
  return end;
}

}  // namespace tarnloft
