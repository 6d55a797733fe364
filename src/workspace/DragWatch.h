#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Knows where a drag hovers over it, whoever takes its drop.
class DragWatch : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  // In points from the top; negative while nothing hovers.
  Q_PROPERTY(qreal hoverY READ hoverY NOTIFY hoverYChanged)

 public:
  using QQuickItem::QQuickItem;

  qreal hoverY() const { return hoverY_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void hoverYChanged();

 protected:
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  void hover(const QPointF& scenePosition);
  void setHoverY(qreal y);

  QPointer<QQuickWindow> watched_;
  qreal hoverY_ = -1;
};

}  // namespace tarnloft
