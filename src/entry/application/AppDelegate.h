#pragma once

#include "platform/Taskbar.h"
#include "quickgrab/MenuBarController.h"
#include "quickgrab/MenuBarPrefs.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <memory>

namespace tarnloft {

// What belongs to no window: the way back to the main one, the first size of it, what happens when
// the last window closes, and whether the taskbar shows any. Main thread.
class AppDelegate : public QObject {
 public:
  struct Actions {
    std::function<void()> openMainWindow;  // a new one
    std::function<void()> quit;
    // Makes the presence beside the windows, with a way back to the main one.
    std::function<std::unique_ptr<MenuBarController>(std::function<void()> onOpenApp)> makeMenuBar;
  };

  // Borrowed: all outlive this.
  AppDelegate(Preferences& preferences, const MenuBarPrefs& prefs, StatusItem& statusItem,
              Taskbar& taskbar, Actions actions);

  // The open main window, or null.
  void setMainWindow(QWindow* window) { mainWindow_ = window; }

  // Keeps the windows off the taskbar as wanted. Sizes the window of a first run a moment later.
  void applicationDidFinishLaunching();

  // Puts the icon into the tray and registers the key. At most once, however often it is called.
  void installMenuBar();
  // Null before that.
  MenuBarController* menuBar() const { return menuBar_.get(); }

  // There is no window, and a tray shall lead to one for as long as that is so.
  void startHidden();

  // Brings the main window to the front, or opens it.
  void showMainWindow();

  // The user started the program again.
  void applicationShouldHandleReopen() { showMainWindow(); }

  // True as well where nothing could bring a window back.
  bool applicationShouldTerminateAfterLastWindowClosed() const;

  // Quits, or stays without a window for as long as the tray does.
  void lastWindowClosed();

 private:
  void followShowDock();
  void followTray();
  void giveUpTray();

  Preferences& preferences_;
  const MenuBarPrefs& prefs_;
  StatusItem& statusItem_;
  Taskbar& taskbar_;
  const Actions actions_;
  std::unique_ptr<MenuBarController> menuBar_;
  QPointer<QWindow> mainWindow_;
  bool isHidden_ = false;    // no window is open
  QTimer trayPatience_;      // with a tray that has gone or has yet to come
  bool isTrayGone_ = false;  // for longer than that
};

}  // namespace tarnloft
