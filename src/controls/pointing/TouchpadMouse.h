#pragma once

#include <QObject>
#include <QPointingDevice>

namespace tarnloft {

// On GNOME and Plasma the toolkit reports each mouse as a touchpad that is touched by a finger, for
// which its handlers of taps and drags take any button, ahead of all items. As an event filter of
// the application, or of one window, this hands presses and moves of such a device on as a mouse's.
// What it scrolls stays a touchpad's, which moves by pixels. Main thread.
class TouchpadMouse : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPointingDevice mouse_{QStringLiteral("mouse"),
                         0,
                         QInputDevice::DeviceType::Mouse,
                         QPointingDevice::PointerType::Generic,
                         QInputDevice::Capability::Position | QInputDevice::Capability::Hover |
                             QInputDevice::Capability::Scroll,
                         1,
                         5};
};

}  // namespace tarnloft
