#pragma once

#include <QDropEvent>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

#include <memory>

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

  // Tells the window of the drag's place once more, for what has come under a pointer that rests;
  // on the next turn of the event loop, when all has come there.
  Q_INVOKABLE void repeatSoon();

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void hoverYChanged();

 protected:
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  void repeat();
  void follow(const QDropEvent& event);
  void end();
  void setHoverY(qreal y);

  QPointer<QQuickWindow> watched_;
  qreal hoverY_ = -1;
  bool isRepeatDue_ = false;
  std::unique_ptr<QDropEvent> last_;  // while a drag hovers over the window
};

}  // namespace tarnloft
