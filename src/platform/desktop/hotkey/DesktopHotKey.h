#pragma once

#include "platform/GlobalHotKey.h"
#include "platform/SystemLog.h"

#include <memory>

namespace tarnloft {

// The way to a global key that the running desktop has: of the X server, or of the portal. Needs a
// QGuiApplication.
std::unique_ptr<GlobalHotKey> makeDesktopHotKey(SystemLog& log);

}  // namespace tarnloft
