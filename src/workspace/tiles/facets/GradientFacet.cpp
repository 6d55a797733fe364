#include "workspace/tiles/facets/GradientFacet.h"

#include "model/ShownText.h"
#include "pictures/HexColor.h"
#include "workspace/BrandWorkspace.h"

#include <algorithm>
#include <cmath>

namespace tarnloft {

QList<GradientStop> GradientFacet::sortedStops() const {
  QList<GradientStop> stops = payload<GradientPayload>().value.stops;
  std::ranges::stable_sort(stops, {}, &GradientStop::location);
  return stops;
}

QList<QColor> GradientFacet::stopColors() const {
  QList<QColor> colors;
  for (const GradientStop& stop : sortedStops()) colors << shownColor(stop.hex);
  return colors;
}

QStringList GradientFacet::stopHexes() const {
  QStringList hexes;
  for (const GradientStop& stop : sortedStops()) hexes << shownText(stop.hex);
  return hexes;
}

QStringList GradientFacet::stopPlaces() const {
  QStringList places;
  for (const GradientStop& stop : sortedStops())
    places << QStringLiteral("%1%").arg(std::trunc(stop.location * 100), 0, 'f', 0);
  return places;
}

QString GradientFacet::angle() const {
  return QStringLiteral("%1°").arg(std::trunc(payload<GradientPayload>().value.angle), 0, 'f', 0);
}

void GradientFacet::copyCss() {
  if (hasCss())
    workspace().commands().copy(payload<GradientPayload>().value.cssString(),
                                QStringLiteral("CSS gradient"));
}

}  // namespace tarnloft
