#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The soft shadow of a rounded rectangle: put it before its caster, anchored to it. What the caster
// hides isn't drawn.
//   Shadow { anchors.fill: card; radius: card.radius; blur: 12; drop: 4; strength: 0.2 }
class Shadow : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY changed)
  Q_PROPERTY(qreal blur MEMBER blur_ NOTIFY changed)          // radius of the softness
  Q_PROPERTY(qreal drop MEMBER drop_ NOTIFY changed)          // offset downwards
  Q_PROPERTY(qreal strength MEMBER strength_ NOTIFY changed)  // opacity, from 0 to 1

 public:
  explicit Shadow(QQuickItem* parent = nullptr);

 signals:
  void changed();

 protected:
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

 private:
  qreal radius_ = 0;
  qreal blur_ = 0;
  qreal drop_ = 0;
  qreal strength_ = 0;
};

}  // namespace tarnloft
