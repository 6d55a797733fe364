#include "entry/application/TarnLoftApp.h"

#include "assets/DropImport.h"
#include "controls/motion/Motion.h"
#include "controls/symbols/SymbolFont.h"
#include "platform/desktop/window/ScreenComposition.h"
#include "platform/desktop/window/WindowActivation.h"

#include <QGuiApplication>
#include <QPalette>
#include <QQuickWindow>
#include <QTimer>

#include <chrono>
#include <cstdlib>
#include <initializer_list>
#include <utility>

namespace tarnloft {
namespace {

using namespace std::chrono_literals;

constexpr auto viewsPatience = 1s;  // behind the first frame, with views that nobody asked for yet
constexpr auto landingPatience = 2s;  // with what was dropped right before the end
constexpr auto savingPatience = 5s;   // with each piece of work on the disk, at the end
constexpr auto threadPatience = 1s;   // with a picture that is being read, which nobody waits for

constexpr auto panelPause = 1500ms;  // behind the first frame, before the panel's views load

constexpr auto portalPatience =
    30ms;  // with what it tells of light and dark, before the first frame

// The theme's colours as the toolkit's own drawing wants them.
QPalette toolkitColors(const Theme& theme) {
  QPalette colors;
  using Role = QPalette::ColorRole;
  for (const auto& [role, color] : std::initializer_list<std::pair<Role, QColor>>{
           {Role::Window, theme.windowBackground()},
           {Role::WindowText, theme.label()},
           {Role::Base, theme.textBackground()},
           {Role::AlternateBase, theme.controlBackground()},
           {Role::Text, theme.label()},
           {Role::PlaceholderText, theme.placeholder()},
           {Role::Button, theme.controlBackground()},
           {Role::ButtonText, theme.label()},
           {Role::ToolTipBase, theme.menuBackground()},
           {Role::ToolTipText, theme.label()},
           {Role::Highlight, theme.accentFill()},
           {Role::HighlightedText, theme.onAccent()},
           {Role::Link, theme.accentText()}}) {
    colors.setColor(role, color);
  }
  for (const Role role : {Role::WindowText, Role::Text, Role::ButtonText}) {
    colors.setColor(QPalette::Disabled, role, theme.tertiaryLabel());
  }
  return colors;
}

// For ends of the process that leave no time, such as a display that goes.
TarnLoftApp* running = nullptr;

}  // namespace

TarnLoftApp::TarnLoftApp(Opening opening)
    : library_(services_.forLibrary()),
      opening_(opening),
      windowViews_(opening == Opening::window
                       ? std::optional<ViewLoading>(std::in_place, engine_, MainWindow::url())
                       : std::nullopt),
      theme_(Theme::of(engine_)),
      tint_(library_, theme_),
      menuBarPrefs_(services_.preferences, services_.log),
      updater_(services_.updater, services_.preferences, systemNow),
      mainWindow_(engine_, services_.forWorkspace(library_), services_.state, &updater_),
      settingsWindow_(engine_, {.library = library_,
                                .menuBar = menuBarPrefs_,
                                .dialogs = services_.dialogs,
                                .viewer = services_.viewer,
                                .statusItem = services_.statusItem,
                                .taskbar = services_.taskbar,
                                .loginItem = services_.autostart,
                                .updater = updater_,
                                .hotKey =
                                    [this] {
                                      MenuBarController* const menuBar = appDelegate_.menuBar();
                                      return menuBar ? &menuBar->hotKeySettings() : nullptr;
                                    }}),
      appDelegate_(services_.preferences, menuBarPrefs_, services_.statusItem, services_.taskbar,
                   {.openMainWindow = [this] { openMainWindow(); },
                    .quit = [this] { requestQuit(); },
                    .makeMenuBar =
                        [this](std::function<void()> onOpenApp) {
                          return makeMenuBar(std::move(onOpenApp));
                        }}) {
  services_.tell = [this](const QString& title, const QString& message) {
    library_.tell(title, message);
  };
  symbols::fontFamily();  // registered before any text, which it would lay out again
  ViewLoading::answer();
  services_.media.work.hold();  // the first frame has the cores to itself
  followAppearance();
  connect(&services_.appearance, &DesktopAppearance::darkChanged, this,
          &TarnLoftApp::followAppearance);
  services_.motion.follow(
      [&motion = Motion::of(engine_)](bool reduced) { motion.setReduced(reduced); });
  connect(&engine_, &QQmlEngine::quit, this, [this] { requestQuit(); });
  connect(&terminationSignals_, &TerminationSignals::requested, this, [this] {
    sequel_ = Sequel::none;
    quitByForce();
  });
  connect(&updater_, &UpdaterViewModel::relaunchRequested, this,
          [this] { requestQuit(Sequel::newStart); });
  connect(&updater_, &UpdaterViewModel::installationBegun, this,
          [this] { settingsWindow_.openAtUpdates(mainWindow_.window()); });
  connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &TarnLoftApp::saveAll);
  connect(qGuiApp, &QGuiApplication::aboutToQuit, this, [this] {
    if (!isQuitting_) saveAll();
  });
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &TarnLoftApp::followFocus);
  mainWindow_.setMayClose([this] { return mayCloseWindow(); });
  running = this;
  std::atexit([] {
    if (running) running->saveAll();
  });
  connect(&mainWindow_, &MainWindow::settingsRequested, this, &TarnLoftApp::openSettings);
  connect(&mainWindow_, &MainWindow::updateCheckRequested, this, &TarnLoftApp::checkForUpdates);
  connect(&mainWindow_, &MainWindow::closed, this, &TarnLoftApp::windowClosed);
  connect(&settingsWindow_, &SettingsWindow::closed, this, &TarnLoftApp::settingsClosed);
}

TarnLoftApp::~TarnLoftApp() { running = nullptr; }

bool TarnLoftApp::start() {
  if (opening_ != Opening::window) {
    appDelegate_.installMenuBar();
    appDelegate_.startHidden();
    services_.media.work.resume();
    updater_.start();
    return true;
  }
  if (!openMainWindow()) return false;
  appDelegate_.applicationDidFinishLaunching();
  return true;
}

void TarnLoftApp::showQuickGrab() {
  appDelegate_.installMenuBar();
  appDelegate_.menuBar()->showPanel();
}

void TarnLoftApp::perform(const QString& action) {
  if (action == QLatin1String("quick-grab")) return showQuickGrab();
  if (action == QLatin1String("preferences")) return openSettings();
  allowActivation();
  appDelegate_.applicationShouldHandleReopen();
  if (action == QLatin1String("new-brand")) library_.setNewBrandRequested(true);
}

void TarnLoftApp::open(const QStringList& paths) {
  perform({});
  for (const QString& path : paths) library_.openFile(path);
}

bool TarnLoftApp::openMainWindow() {
  services_.appearance.settle(portalPatience);
  if (!mainWindow_.open()) return false;
  QQuickWindow* const window = mainWindow_.window();
  appDelegate_.setMainWindow(window);
  connect(window, &QQuickWindow::frameSwapped, this, &TarnLoftApp::firstFrameShown,
          Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
  appDelegate_.showMainWindow();
  return true;
}

void TarnLoftApp::openSettings() { settingsWindow_.open(mainWindow_.window()); }

void TarnLoftApp::checkForUpdates() {
  settingsWindow_.openAtUpdates(mainWindow_.window());
  updater_.checkForUpdates();
}

void TarnLoftApp::windowClosed() {
  if (mainWindow_.window() || settingsWindow_.window()) return;
  appDelegate_.lastWindowClosed();
}

// Some window managers give the keyboard to none that stands outside of the taskbar.
void TarnLoftApp::settingsClosed() {
  if (QQuickWindow* const window = mainWindow_.window()) window->requestActivate();
  windowClosed();
}

void TarnLoftApp::firstFrameShown() {
  appDelegate_.installMenuBar();
  updater_.start();
  services_.media.work.resume();
  QTimer::singleShot(viewsPatience, this, [this] {
    mainWindow_.prepareSheets();
    settingsWindow_.prepare();
  });
  QTimer::singleShot(panelPause, this, [this] { appDelegate_.menuBar()->panel().prepare(); });
}

std::unique_ptr<MenuBarController> TarnLoftApp::makeMenuBar(std::function<void()> onOpenApp) {
  auto panel = std::make_unique<QuickGrabPanel>(
      engine_, services_.forQuickGrab(library_, menuBarPrefs_), isScreenComposed);
  return std::make_unique<MenuBarController>(
      services_.statusItem, *services_.hotKey, menuBarPrefs_, services_.beep, std::move(panel),
      MenuBarActions{.onOpenApp = std::move(onOpenApp),
                     .onOpenSettings = [this] { openSettings(); },
                     .onQuit = [this] { requestQuit(); }});
}

// What the user dropped right before is theirs already.
bool TarnLoftApp::saveAll() {
  if (!DropImport::finish(services_.workers, landingPatience)) {
    services_.log.write(QStringLiteral("ended while files were still being added"));
  }
  library_.endShowing(threadPatience);
  return library_.flush(savingPatience);
}

void TarnLoftApp::requestQuit(Sequel sequel) {
  sequel_ = sequel;
  if (!isQuitting_ && !saveAll()) return askToQuit();
  isQuitting_ = true;
  QCoreApplication::quit();
}

// Nobody is there to be asked.
void TarnLoftApp::quitByForce() {
  if (!saveAll()) {
    services_.log.write(QStringLiteral("ended with unsaved changes to ") +
                        library_.unsavedBrands().join(QStringLiteral(", ")));
  }
  isQuitting_ = true;
  QCoreApplication::quit();
}

// Without its window the program goes on where there is a tray, and tries on to save.
bool TarnLoftApp::mayCloseWindow() {
  if (isQuitting_) return true;
  const bool goesOn =
      settingsWindow_.window() || !appDelegate_.applicationShouldTerminateAfterLastWindowClosed();
  if (goesOn) {
    (void)library_.flush(0s);
    return true;
  }
  if (saveAll()) return true;
  askToQuit();
  return false;
}

void TarnLoftApp::askToQuit() {
  appDelegate_.showMainWindow();
  Alerts* const alerts = mainWindow_.alerts();
  if (!alerts) return quitByForce();
  connect(alerts, &Alerts::quitConfirmed, this, &TarnLoftApp::quitByForce, Qt::UniqueConnection);
  alerts->askToQuit();
}

// What couldn't be done may be possible by now.
void TarnLoftApp::followFocus() {
  if (!QGuiApplication::focusWindow()) return;
  library_.retrySaves();
  library_.followOpenPackage();
  if (!library_.libraryProblem().isEmpty()) library_.scan();
}

bool TarnLoftApp::finish() { return services_.finish(threadPatience); }

void TarnLoftApp::followAppearance() {
  theme_.setDark(services_.appearance.isDark());
  services_.appearance.setColors(toolkitColors(theme_));
}

}  // namespace tarnloft
