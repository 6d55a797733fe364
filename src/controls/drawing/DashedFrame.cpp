#include "controls/drawing/DashedFrame.h"

#include <QPainter>

namespace tarnloft {

DashedFrame::DashedFrame(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
  connect(this, &DashedFrame::changed, this, [this] { update(); });
}

void DashedFrame::paint(QPainter* painter) {
  QPen pen(m_color, m_thickness);
  pen.setDashPattern({m_dash / m_thickness, m_dash / m_thickness});
  pen.setCapStyle(Qt::FlatCap);
  painter->setPen(pen);
  const qreal inset = m_thickness / 2;
  const qreal radius = m_radius - inset;
  painter->drawRoundedRect(QRectF(0, 0, width(), height()).adjusted(inset, inset, -inset, -inset),
                           radius, radius);
}

}  // namespace tarnloft
