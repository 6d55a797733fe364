#include "entry/application/AppDelegate.h"

#include "shell/window/WindowState.h"

#include <chrono>

namespace tarnloft {

using namespace std::chrono_literals;

namespace {
constexpr auto trayPatience = 6s;  // one that is only being restarted is back by then
}

AppDelegate::AppDelegate(Preferences& preferences, const MenuBarPrefs& prefs,
                         StatusItem& statusItem, Taskbar& taskbar, Actions actions)
    : preferences_(preferences),
      prefs_(prefs),
      statusItem_(statusItem),
      taskbar_(taskbar),
      actions_(std::move(actions)) {
  trayPatience_.setSingleShot(true);
  trayPatience_.setInterval(trayPatience);
  connect(&trayPatience_, &QTimer::timeout, this, &AppDelegate::giveUpTray);
  statusItem_.followTray([this] { followTray(); });
  connect(&prefs, &MenuBarPrefs::showDockChanged, this, &AppDelegate::followShowDock);
  taskbar_.setWindowsShown(prefs.showDock());
  trayPatience_.start();  // the icon isn't there yet
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
  isTrayGone_ = false;
  trayPatience_.start();
}

void AppDelegate::followShowDock() {
  isTrayGone_ = !statusItem_.isInTray();
  taskbar_.setWindowsShown(prefs_.showDock() || isTrayGone_);
}

void AppDelegate::followTray() {
  if (!statusItem_.isInTray()) return trayPatience_.start();
  trayPatience_.stop();
  isTrayGone_ = false;
  taskbar_.setWindowsShown(prefs_.showDock());
}

void AppDelegate::giveUpTray() {
  isTrayGone_ = !statusItem_.isInTray();
  taskbar_.setWindowsShown(prefs_.showDock() || isTrayGone_);
  if (isHidden_ && isTrayGone_) showMainWindow();
}

}  // namespace tarnloft
