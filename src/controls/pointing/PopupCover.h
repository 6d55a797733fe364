#pragma once

#include <QObject>
#include <QPointF>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Tells handlers of the pointer what a popup keeps from them. The toolkit gives a press that an
// item of a popup takes to the handlers beneath it as well, also where the popup is modal: a click
// on a list in a sheet would be one on the tile under it, and a press on its button could drag
// that.
class PopupCover : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  // Whether a popup in which the item isn't stands over that point of the item's window, or over
  // the whole of it. Main thread.
  Q_INVOKABLE static bool covers(const QQuickItem* item, const QPointF& scenePoint);
};

}  // namespace tarnloft
