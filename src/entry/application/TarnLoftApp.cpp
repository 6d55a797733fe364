#include "entry/application/TarnLoftApp.h"

#include "platform/controls/Motion.h"
#include "platform/controls/symbols/SymbolFont.h"

#include <QCoreApplication>
#include <QQuickWindow>

#include <chrono>

namespace tarnloft {
namespace {

using namespace std::chrono_literals;

constexpr auto landingPatience = 2s;  // with what was dropped right before the end
constexpr auto threadPatience = 1s;   // with a picture that is being read, which nobody waits for

}  // namespace

TarnLoftApp::TarnLoftApp()
    : library_(services_.forLibrary()),
      theme_(Theme::of(engine_)),
      tint_(library_, theme_),
      menuBarPrefs_(services_.preferences),
      mainWindow_(engine_, services_.forLibrary(), services_.forWorkspace(library_),
                  services_.state),
      appDelegate_(
          services_.preferences, menuBarPrefs_, services_.statusItem, [this] { openMainWindow(); },
          &QCoreApplication::quit) {
  symbols::fontFamily();  // registered before any text, which it would lay out again
  ViewLoading::answer();
  services_.media.work.hold();  // the first frame has the cores to itself
  followAppearance();
  connect(&services_.appearance, &DesktopAppearance::darkChanged, this,
          &TarnLoftApp::followAppearance);
  services_.motion.follow(
      [&motion = Motion::of(engine_)](bool reduced) { motion.setReduced(reduced); });
  connect(&engine_, &QQmlEngine::quit, qApp, &QCoreApplication::quit);
  connect(qApp, &QCoreApplication::aboutToQuit, this, &TarnLoftApp::landDrops);
  connect(&mainWindow_, &MainWindow::closed, &appDelegate_, &AppDelegate::lastWindowClosed);
}

bool TarnLoftApp::start() {
  if (!openMainWindow()) return false;
  appDelegate_.applicationDidFinishLaunching();
  return true;
}

bool TarnLoftApp::openMainWindow() {
  if (!mainWindow_.open()) return false;
  QQuickWindow* const window = mainWindow_.window();
  appDelegate_.setMainWindow(window);
  connect(window, &QQuickWindow::frameSwapped, this, &TarnLoftApp::firstFrameShown,
          Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
  appDelegate_.showMainWindow();
  return true;
}

void TarnLoftApp::firstFrameShown() {
  appDelegate_.installMenuBar();
  services_.media.work.resume();
}

// What the user dropped right before is theirs already.
void TarnLoftApp::landDrops() {
  BrandDocument* const open = library_.openDocument();
  const Brand before = open ? open->brand() : Brand();
  if (!DropImport::finish(services_.workers, landingPatience)) {
    services_.log.write(QStringLiteral("ended while files were still being added"));
  }
  if (open && open->brand() != before) open->saveNow();
}

bool TarnLoftApp::finish() { return services_.finish(threadPatience); }

void TarnLoftApp::followAppearance() { theme_.setDark(services_.appearance.isDark()); }

}  // namespace tarnloft
