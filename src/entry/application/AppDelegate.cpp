#include "entry/application/AppDelegate.h"

#include "shell/window/WindowState.h"

#include <chrono>

namespace tarnloft {

using namespace std::chrono_literals;

namespace {
constexpr int missesThatCount = 2;
}

AppDelegate::AppDelegate(Preferences& preferences, const MenuBarPrefs& prefs,
                         StatusItem& statusItem, Taskbar& taskbar,
                         std::function<void()> openMainWindow, std::function<void()> quit)
    : preferences_(preferences),
      prefs_(prefs),
      statusItem_(statusItem),
      taskbar_(taskbar),
      openMainWindow_(std::move(openMainWindow)),
      quit_(std::move(quit)) {
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
  menuBar_ = std::make_unique<MenuBarController>(
      statusItem_, [this] { showMainWindow(); }, quit_);
  menuBar_->installStatusItem();
}

void AppDelegate::showMainWindow() {
  isHidden_ = false;
  watchTray();
  if (!mainWindow_) return openMainWindow_();
  if (mainWindow_->windowStates() & Qt::WindowMinimized) mainWindow_->showNormal();
  mainWindow_->show();
  mainWindow_->raise();
  mainWindow_->requestActivate();
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed() const {
  return !prefs_.keepRunning() || !statusItem_.isInTray();
}

void AppDelegate::lastWindowClosed() {
  if (applicationShouldTerminateAfterLastWindowClosed()) return quit_();
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
