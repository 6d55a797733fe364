#pragma once

#include "controls/drawing/RoundedOutline.h"

#include <QColor>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// A filled rectangle with round corners and an edge along its inside, drawn over the fill:
//   RoundedRectangle { radius: 6; color: Theme.fieldFill; edgeWidth: 1; edgeColor:
//   Theme.fieldBorder }
// Its sides lie on whole pixels of the screen at any scale and wherever it stands, in both scene
// graphs; the toolkit's own rectangle blurs at 1.25 in one of them and is torn in the other.
class RoundedRectangle : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
  Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY changed)
  Q_PROPERTY(qreal edgeWidth MEMBER edgeWidth_ NOTIFY changed)
  Q_PROPERTY(QColor edgeColor MEMBER edgeColor_ NOTIFY changed)

 public:
  explicit RoundedRectangle(QQuickItem* parent = nullptr);

 signals:
  void changed();

 protected:
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

 private:
  void follow(QQuickWindow* window);

  QColor color_ = Qt::white;
  qreal radius_ = 0;
  qreal edgeWidth_ = 0;
  QColor edgeColor_ = Qt::black;
  QPointer<QQuickWindow> window_;
};

}  // namespace tarnloft
