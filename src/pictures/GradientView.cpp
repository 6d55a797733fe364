#include "pictures/GradientView.h"

#include "pictures/HexColor.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace tarnloft {
namespace {

QList<GradientStop> byLocation(QList<GradientStop> stops) {
  std::stable_sort(stops.begin(), stops.end(), [](const GradientStop& a, const GradientStop& b) {
    return a.location < b.location;
  });
  return stops;
}

// The toolkit keeps one colour for each place, so that a hard edge takes two places close together.
QGradientStops apart(QGradientStops stops) {
  constexpr double step = 1e-5;
  for (qsizetype i = 1; i < stops.size(); ++i) {
    stops[i].first = std::max(stops[i].first, stops[i - 1].first + step);
  }
  double most = 1;
  for (auto stop = stops.rbegin(); stop != stops.rend(); ++stop, most -= step) {
    stop->first = std::min(stop->first, most);
  }
  return stops;
}

}  // namespace

QLinearGradient linearGradient(const GradientValue& gradient, const QSizeF& size) {
  const double angle = gradient.angle * std::numbers::pi / 180;
  const QPointF middle(size.width() / 2, size.height() / 2);
  const QPointF reach(std::cos(angle) * middle.x(), std::sin(angle) * middle.y());
  QLinearGradient result(middle - reach, middle + reach);
  QGradientStops stops;
  for (const GradientStop& stop : byLocation(gradient.stops)) {
    const QColor color = colorOf(stop.hex);
    if (color.isValid()) stops << QGradientStop(std::clamp(stop.location, 0.0, 1.0), color);
  }
  if (stops.isEmpty()) stops << QGradientStop(0, Qt::transparent);  // else it runs black to white
  result.setStops(apart(stops));
  return result;
}

GradientView::GradientView(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
}

void GradientView::setGradient(const GradientLook& gradient) {
  if (gradient_ == gradient) return;
  gradient_ = gradient;
  emit changed();
  update();
}

void GradientView::setRadius(qreal radius) {
  if (std::exchange(radius_, radius) == radius) return;
  emit changed();
  update();
}

void GradientView::paint(QPainter* painter) {
  const QLinearGradient gradient = linearGradient(gradient_.value, size());
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(gradient);
  painter->drawRoundedRect(boundingRect(), radius_, radius_);
}

}  // namespace tarnloft
