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
  const int rows = static_cast<int>(std::ceil(height() / m_cell));
  const int columns = static_cast<int>(std::ceil(width() / m_cell));
  for (int row = 0; row < rows; ++row)
    for (int column = (row + 1) % 2; column < columns; column += 2)
      cells.addRect(QRectF(column * m_cell, row * m_cell, m_cell, m_cell));
  QPainterPath shape;
  shape.addRoundedRect(whole, m_radius, m_radius);
  painter->fillPath(shape, bright);
  painter->fillPath(m_radius > 0 ? cells.intersected(shape) : cells, dim);
}

}  // namespace tarnloft
