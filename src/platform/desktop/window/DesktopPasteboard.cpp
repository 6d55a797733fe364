#include "platform/desktop/window/DesktopPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace tarnloft {

void DesktopPasteboard::setText(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
}

}  // namespace tarnloft
