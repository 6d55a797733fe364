#include "entry/application/AppDelegate.h"

#include "shell/window/WindowState.h"

#include <chrono>

namespace tarnloft {

using namespace std::chrono_literals;

namespace {
constexpr int missesThatCount = 2;
}

AppDelegate::AppDelegate(Preferences& preferences, const MenuBarPrefs& prefs,
                         const StatusItem& statusItem, Taskbar& taskbar, Actions actions)
    : preferences_(preferences),
      prefs_(prefs),
      statusItem_(statusItem),
      taskbar_(taskbar),
      actions_(std::move(actions)) {
  trayCheck_.setInterval(3s);
  connect(&trayCheck_, &QTimer::timeout, this, &AppDelegate::checkTray);
  connect(&prefs, &MenuBarPrefs::showDockChanged, this, &AppDelegate::followShowDock);
  // The tray isn't there yet; should it not come, a later look will find that.
  taskbar_.setWindowsShown(prefs.showDock());
  watchTray();
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
  isHidden_ = false;
  watchTray();
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
  startHidden();
}

void AppDelegate::startHidden() {
  isHidden_ = true;
  missed_ = 0;
  watchTray();
}

void AppDelegate::followShowDock() {
  missed_ = statusItem_.isInTray() ? 0 : missesThatCount;
  taskbar_.setWindowsShown(prefs_.showDock() || missed_ > 0);
  watchTray();
}

void AppDelegate::watchTray() {
  if (!isHidden_ && prefs_.showDock()) return trayCheck_.stop();
  if (!trayCheck_.isActive()) trayCheck_.start();
}

// A tray that is only being restarted is back by the second look.
void AppDelegate::checkTray() {
  missed_ = statusItem_.isInTray() ? 0 : missed_ + 1;
  const bool isGone = missed_ >= missesThatCount;
  taskbar_.setWindowsShown(prefs_.showDock() || isGone);
  if (isHidden_ && isGone) showMainWindow();
}

}  // namespace tarnloft
