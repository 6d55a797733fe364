#pragma once

#include <QRectF>
#include <QTransform>

namespace tarnloft {

// A rounded rectangle with an edge of some thickness along its inside.
struct RoundedOutline {
  QRectF rectangle;
  qreal radius = 0;
  qreal edge = 0;

  friend bool operator==(const RoundedOutline&, const RoundedOutline&) = default;

  // The same on whole pixels: its sides moved to the nearest, its edge to a whole number of them
  // and at least one. `toPixels` maps the outline's points to pixels, about `pixelRatio` of them to
  // a point; what is turned or scaled besides, as midway in an animation, stays as it is.
  RoundedOutline onPixels(const QTransform& toPixels, qreal pixelRatio) const;

  // Smaller by `inset` on all sides, larger by a negative one; without an edge.
  RoundedOutline inset(qreal inset) const;
};

}  // namespace tarnloft
