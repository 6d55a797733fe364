#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// A dashed line along the inside of a rounded rectangle, which is the item's own. Lengths in
// points.
class DashedFrame : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
  Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed)
  Q_PROPERTY(qreal thickness MEMBER m_thickness NOTIFY changed)
  Q_PROPERTY(qreal dash MEMBER m_dash NOTIFY changed)

 public:
  explicit DashedFrame(QQuickItem* parent = nullptr);

  void paint(QPainter* painter) override;

 signals:
  void changed();

 private:
  QColor m_color = Qt::black;
  qreal m_radius = 12;
  qreal m_thickness = 2;
  qreal m_dash = 10;
};

}  // namespace tarnloft
