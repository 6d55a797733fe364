#include "platform/desktop/window/DesktopBeep.h"

#include <QApplication>

namespace tarnloft {

void DesktopBeep::sound() { QApplication::beep(); }

}  // namespace tarnloft
