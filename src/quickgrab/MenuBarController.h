#pragma once

#include "platform/StatusItem.h"

#include <QIcon>

namespace tarnloft {

// The program's presence beside its windows: the icon in the tray. Main thread.
class MenuBarController {
 public:
  // The item is borrowed. `onOpenApp` shows the main window, `onQuit` ends the program.
  MenuBarController(StatusItem& statusItem, std::function<void()> onOpenApp,
                    std::function<void()> onQuit);

  void installStatusItem();

  // A house with a window of four panes, for trays of any colour.
  static QIcon statusItemImage();

 private:
  StatusItem& statusItem_;
  const std::function<void()> onOpenApp_;
  const std::function<void()> onQuit_;
};

}  // namespace tarnloft
