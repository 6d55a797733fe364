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
  Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
  Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY changed)
  Q_PROPERTY(qreal thickness MEMBER thickness_ NOTIFY changed)
  Q_PROPERTY(qreal dash MEMBER dash_ NOTIFY changed)

 public:
  explicit DashedFrame(QQuickItem* parent = nullptr);

  void paint(QPainter* painter) override;

 signals:
  void changed();

 private:
  QColor color_ = Qt::black;
  qreal radius_ = 12;
  qreal thickness_ = 2;
  qreal dash_ = 10;
};

}  // namespace tarnloft
