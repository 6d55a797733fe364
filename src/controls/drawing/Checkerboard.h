#pragma once

#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The grey cells behind something transparent. The corners of the item can be cut round.
class Checkerboard : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(qreal cell MEMBER cell_ NOTIFY changed)  // side of a cell in points
  Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY changed)

 public:
  explicit Checkerboard(QQuickItem* parent = nullptr);

  void paint(QPainter* painter) override;

 signals:
  void changed();

 private:
  qreal cell_ = 8;
  qreal radius_ = 0;
};

}  // namespace tarnloft
