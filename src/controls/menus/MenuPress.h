#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The press that opened a menu: pulled onto an entry and let go there it chooses that, as in the
// menus of all desktops. What was pressed gives the pointer up, so that entries hear of it. Main
// thread.
class MenuPress : public QObject {
  Q_OBJECT
  QML_ELEMENT

 public:
  using QObject::QObject;

  // A menu opens in the item's window. Nothing if no button is down.
  Q_INVOKABLE void begin(const QQuickItem* item);
  // It closes.
  Q_INVOKABLE void end();

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  // The button went up there, in the window, neither at once nor where it went down.
  void released(const QPointF& scenePoint);

 private:
  QPointer<QQuickWindow> window_;
  QElapsedTimer since_;
  QPointF from_;  // on the desktop
};

}  // namespace tarnloft
