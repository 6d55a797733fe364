#pragma once

#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The grey cells behind something transparent. The corners of the item can be cut round.
class Checkerboard : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(qreal cell MEMBER m_cell NOTIFY changed)  // side of a cell in points
  Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed)

 public:
  explicit Checkerboard(QQuickItem* parent = nullptr);

  void paint(QPainter* painter) override;

 signals:
  void changed();

 private:
  qreal m_cell = 8;
  qreal m_radius = 0;
};

}  // namespace tarnloft
