#include "entry/application/WindowApplication.h"

#include "platform/controls/Motion.h"
#include "shell/LastWindowPolicy.h"

#include <QCoreApplication>
#include <QQuickWindow>
#include <QTimer>

#include <chrono>

namespace tarnloft {

using namespace std::chrono_literals;

WindowApplication::WindowApplication()
    : theme_(Theme::of(engine_)),
      library_(services_.forLibrary()),
      tint_(library_, theme_),
      mainWindow_(engine_, services_.forLibrary(), services_.forWorkspace(library_),
                  services_.state) {
  followAppearance();
  connect(&services_.appearance, &DesktopAppearance::darkChanged, this,
          &WindowApplication::followAppearance);
  services_.motion.follow(
      [&motion = Motion::of(engine_)](bool reduced) { motion.setReduced(reduced); });
  connect(&engine_, &QQmlEngine::quit, qApp, &QCoreApplication::quit);
  connect(&mainWindow_, &MainWindow::closed, this, &WindowApplication::mainWindowClosed);
}

bool WindowApplication::start() {
  if (!mainWindow_.show()) return false;
  QTimer::singleShot(300ms, this,
                     [this] { rightSizeWindow(mainWindow_.window(), services_.preferences); });
  return true;
}

void WindowApplication::showMainWindow() { mainWindow_.show(); }

void WindowApplication::followAppearance() { theme_.setDark(services_.appearance.isDark()); }

void WindowApplication::mainWindowClosed() {
  // Nothing is in the tray that could bring a window back.
  const auto policy = lastWindowPolicy(KeepRunning::yes, WayBack::none);
  if (policy == LastWindowPolicy::quit) QCoreApplication::quit();
}

}  // namespace tarnloft
