#include "pictures/MonogramColor.h"

namespace tarnloft {
namespace {

// 33 times the sum so far plus each character, wrapping around in 64 bits; then its absolute value.
quint64 hashOf(const QString& text) {
  quint64 hash = 5381;
  for (const char32_t scalar : text.toUcs4()) hash = hash * 33 + scalar;
  const bool isNegative = hash >> 63U;
  return isNegative ? 0 - hash : hash;
}

}  // namespace

QColor monogramColor(const QString& seed) {
  const int hue = int(hashOf(seed) % 360);
  return QColor::fromHsvF(float(hue) / 360, 0.52F, 0.7F);
}

}  // namespace tarnloft
