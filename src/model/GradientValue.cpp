#include "model/GradientValue.h"

#include "model/Rounding.h"

#include <QStringList>

#include <algorithm>

namespace tarnloft {

bool GradientValue::hasCss() const {
  return fitsInteger(angle) &&
         std::all_of(stops.begin(), stops.end(),
                     [](const GradientStop& stop) { return fitsInteger(stop.location * 100); });
}

QString GradientValue::cssString() const {
  QList<GradientStop> sorted = stops;
  std::stable_sort(sorted.begin(), sorted.end(), [](const GradientStop& a, const GradientStop& b) {
    return a.location < b.location;
  });
  QStringList parts;
  for (const GradientStop& stop : std::as_const(sorted)) {
    parts << QStringLiteral("%1 %2%").arg(stop.hex.toUpper(),
                                          QString::number(rounded(stop.location * 100)));
  }
  return QStringLiteral("linear-gradient(") + QString::number(rounded(angle)) +
         QStringLiteral("deg, ") + parts.join(QStringLiteral(", ")) + QLatin1Char(')');
}

}  // namespace tarnloft
