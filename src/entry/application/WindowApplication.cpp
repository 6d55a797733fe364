#include "entry/application/WindowApplication.h"

#include "shell/LastWindowPolicy.h"

#include <QCoreApplication>
#include <QQuickWindow>
#include <QTimer>

#include <chrono>

namespace tarnloft {

using namespace std::chrono_literals;

WindowApplication::WindowApplication()
    : theme_(Theme::of(engine_)),
      library_(services_.library(appearance_)),
      tint_(library_, theme_),
      workspace_(services_, library_),
      mainWindow_(engine_, library_, services_.library(appearance_), workspace_.services(),
                  services_.state) {
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

void WindowApplication::mainWindowClosed() {
  // Nothing is in the tray that could bring a window back.
  const auto policy = lastWindowPolicy(KeepRunning::yes, WayBack::none);
  if (policy == LastWindowPolicy::quit) QCoreApplication::quit();
}

}  // namespace tarnloft
