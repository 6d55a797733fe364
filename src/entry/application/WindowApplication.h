#pragma once

#include "entry/application/DesktopServices.h"
#include "library/LibraryStore.h"
#include "platform/controls/Theme.h"
#include "shell/AccentTint.h"
#include "shell/MainWindow.h"

#include <QQmlEngine>

namespace tarnloft {

// The program with its windows: makes each long-lived object once and hands it down. Needs a
// QApplication. Main thread.
class WindowApplication : public QObject {
 public:
  WindowApplication();

  // Opens the main window. False if it can't be made.
  bool start();
  // Opens the main window or brings it to the front.
  void showMainWindow();

 private:
  void followAppearance();
  void mainWindowClosed();

  DesktopServices services_;
  QQmlEngine engine_;
  Theme& theme_;
  LibraryStore library_;
  AccentTint tint_;
  MainWindow mainWindow_;
};

}  // namespace tarnloft
