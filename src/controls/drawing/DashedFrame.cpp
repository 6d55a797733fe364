#include "controls/drawing/DashedFrame.h"

#include <QPainter>

namespace tarnloft {

DashedFrame::DashedFrame(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
  connect(this, &DashedFrame::changed, this, [this] { update(); });
}

void DashedFrame::paint(QPainter* painter) {
  QPen pen(color_, thickness_);
  pen.setDashPattern({dash_ / thickness_, dash_ / thickness_});
  pen.setCapStyle(Qt::FlatCap);
  painter->setPen(pen);
  const qreal inset = thickness_ / 2;
  const qreal radius = radius_ - inset;
  painter->drawRoundedRect(QRectF(0, 0, width(), height()).adjusted(inset, inset, -inset, -inset),
                           radius, radius);
}

}  // namespace tarnloft
