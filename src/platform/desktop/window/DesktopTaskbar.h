#pragma once

#include "platform/Taskbar.h"

#include <QObject>

class QWindow;

namespace tarnloft {

// On X11 by the states that window managers keep for this. Wayland has no way that programs may
// use. Needs a QGuiApplication.
class DesktopTaskbar : public QObject, public Taskbar {
 public:
  bool canHideWindows() const override;
  void setWindowsShown(bool shown) override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool areShown_ = true;
};

}  // namespace tarnloft
