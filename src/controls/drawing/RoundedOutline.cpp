#include "controls/drawing/RoundedOutline.h"

#include <algorithm>
#include <cmath>

namespace tarnloft {

namespace {

// Side by side things stay side by side; a square stays one, so that dots are round wherever they
// are.
QRectF aligned(const QRectF& pixels) {
  if (qFuzzyCompare(pixels.width(), pixels.height())) {
    const qreal side = std::round(pixels.width());
    const QPointF start = pixels.center() - QPointF(side, side) / 2;
    return {std::round(start.x()), std::round(start.y()), side, side};
  }
  const QPointF start(std::round(pixels.left()), std::round(pixels.top()));
  const QPointF end(std::round(pixels.right()), std::round(pixels.bottom()));
  return {start, end};
}

}  // namespace

RoundedOutline RoundedOutline::onPixels(const QTransform& toPixels, qreal pixelRatio) const {
  // A window of few points isn't always a whole number of pixels: their ratio is off by a little.
  constexpr qreal little = 0.01;
  constexpr qreal hair = 1e-4;
  const auto isRatio = [pixelRatio](qreal factor) {
    return std::abs(factor - pixelRatio) < little * pixelRatio;
  };
  if (toPixels.type() > QTransform::TxScale || !isRatio(toPixels.m11()) || !isRatio(toPixels.m22()))
    return *this;
  const QRectF pixels = toPixels.mapRect(rectangle);
  // One and a half becomes one: fine lines stay fine.
  const qreal edgePixels = edge > 0 ? std::max(1.0, std::ceil(edge * pixelRatio - 0.5 - hair)) : 0;
  return {toPixels.inverted().mapRect(aligned(pixels)), radius, edgePixels / pixelRatio};
}

RoundedOutline RoundedOutline::inset(qreal inset) const {
  const QPointF middle = rectangle.center();
  const QSizeF size(std::max(0.0, rectangle.width() - 2 * inset),
                    std::max(0.0, rectangle.height() - 2 * inset));
  QRectF inner({}, size);
  inner.moveCenter(middle);
  const qreal most = std::min(size.width(), size.height()) / 2;
  return {inner, radius > 0 ? std::clamp(radius - inset, 0.0, most) : 0, 0};
}

}  // namespace tarnloft
