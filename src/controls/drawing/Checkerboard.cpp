#include "controls/drawing/Checkerboard.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace tarnloft {

Checkerboard::Checkerboard(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
  connect(this, &Checkerboard::changed, this, [this] { update(); });
}

void Checkerboard::paint(QPainter* painter) {
  const QColor bright = QColor::fromHsvF(0, 0, 0.9F);
  const QColor dim = QColor::fromHsvF(0, 0, 0.72F);
  const QRectF whole(0, 0, width(), height());
  QPainterPath cells;
  const int rows = static_cast<int>(std::ceil(height() / cell_));
  const int columns = static_cast<int>(std::ceil(width() / cell_));
  for (int row = 0; row < rows; ++row)
    for (int column = (row + 1) % 2; column < columns; column += 2)
      cells.addRect(QRectF(column * cell_, row * cell_, cell_, cell_));
  QPainterPath shape;
  shape.addRoundedRect(whole, radius_, radius_);
  painter->fillPath(shape, bright);
  painter->fillPath(radius_ > 0 ? cells.intersected(shape) : cells, dim);
}

}  // namespace tarnloft
