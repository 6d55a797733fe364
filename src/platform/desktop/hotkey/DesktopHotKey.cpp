#include "platform/desktop/hotkey/DesktopHotKey.h"

#include "platform/desktop/hotkey/PortalHotKey.h"
#include "platform/desktop/hotkey/ServerHotKey.h"

#include <QGuiApplication>

namespace tarnloft {

std::unique_ptr<GlobalHotKey> makeDesktopHotKey(SystemLog& log) {
  if (QGuiApplication::platformName() == QLatin1String("xcb"))
    return std::make_unique<ServerHotKey>(log);
  return std::make_unique<PortalHotKey>(log);
}

}  // namespace tarnloft
