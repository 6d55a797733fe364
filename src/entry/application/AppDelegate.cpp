#include "entry/application/AppDelegate.h"

#include "shell/window/WindowState.h"

#include <chrono>

namespace tarnloft {

using namespace std::chrono_literals;

AppDelegate::AppDelegate(Preferences& preferences, const MenuBarPrefs& prefs,
                         const StatusItem& statusItem, Actions actions)
    : preferences_(preferences),
      prefs_(prefs),
      statusItem_(statusItem),
      actions_(std::move(actions)) {
  trayCheck_.setInterval(3s);
  connect(&trayCheck_, &QTimer::timeout, this, &AppDelegate::checkTray);
}

void AppDelegate::applicationDidFinishLaunching() {
  QTimer::singleShot(300ms, this, [this] { rightSizeWindow(mainWindow_, preferences_); });
}

void AppDelegate::installMenuBar() {
  if (menuBar_) return;
  menuBar_ = actions_.makeMenuBar([this] { showMainWindow(); });
  menuBar_->installStatusItem();
  menuBar_->installHotKey();
  menuBar_->observePrefs();
}

void AppDelegate::showMainWindow() {
  trayCheck_.stop();
  if (!mainWindow_) return actions_.openMainWindow();
  if (mainWindow_->windowStates() & Qt::WindowMinimized) mainWindow_->showNormal();
  mainWindow_->show();
  mainWindow_->raise();
  mainWindow_->requestActivate();
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed() const {
  return !prefs_.keepRunning() || !statusItem_.isInTray();
}

void AppDelegate::lastWindowClosed() {
  if (applicationShouldTerminateAfterLastWindowClosed()) return actions_.quit();
  missed_ = 0;
  trayCheck_.start();
}

// A tray that is only being restarted is back by the second look.
void AppDelegate::checkTray() {
  missed_ = statusItem_.isInTray() ? 0 : missed_ + 1;
  if (missed_ == 2) showMainWindow();
}

}  // namespace tarnloft
