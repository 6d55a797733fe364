#pragma once

#include <QPointer>
#include <QPropertyAnimation>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QWheelEvent;

namespace tarnloft {

// Scrolling as on a desktop for a Flickable or a view of the same kind: a notch of the wheel
// glides, a touchpad moves pixel by pixel, a press of the mouse drags no content; touch flicks as
// ever. At its end the wheel goes on to what lies around.
//   ListView { id: list; WheelScroll { flickable: list } }
class WheelScroll : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(
      QQuickItem* flickable READ flickable WRITE setFlickable NOTIFY flickableChanged REQUIRED)
  // Points that one notch of the wheel scrolls.
  Q_PROPERTY(qreal notch MEMBER notch_ NOTIFY notchChanged)

 public:
  explicit WheelScroll(QObject* parent = nullptr);

  QQuickItem* flickable() const { return flickable_; }
  void setFlickable(QQuickItem* flickable);

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void flickableChanged();
  void notchChanged();

 private:
  void watchWindow(QQuickWindow* window);
  void scroll(QWheelEvent* event);
  bool scrollAlong(Qt::Orientation direction, qreal pixels, qreal notches);
  void glideTo(Qt::Orientation direction, qreal value);

  QPointer<QQuickItem> flickable_;
  QPointer<QQuickWindow> window_;
  QPropertyAnimation glide_;
  qreal notch_ = 84;
};

}  // namespace tarnloft
