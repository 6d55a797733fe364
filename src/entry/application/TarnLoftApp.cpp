#include "entry/application/TarnLoftApp.h"

#include "assets/DropImport.h"
#include "pictures/HexColor.h"
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
QPalette toolkitColors(const Palette& palette) {
  QPalette colors;
  using Role = QPalette::ColorRole;
  for (const auto& [role, color] : std::initializer_list<std::pair<Role, QColor>>{
           {Role::Window, palette.windowBackground},
           {Role::WindowText, palette.label},
           {Role::Base, palette.textBackground},
           {Role::AlternateBase, palette.controlBackground},
           {Role::Text, palette.label},
           {Role::PlaceholderText, palette.placeholder},
           {Role::Button, palette.controlBackground},
           {Role::ButtonText, palette.label},
           {Role::ToolTipBase, palette.menuBackground},
           {Role::ToolTipText, palette.label},
           {Role::Highlight, palette.accentFill},
           {Role::HighlightedText, palette.onAccent},
           {Role::Link, palette.accentText}}) {
    colors.setColor(role, color);
  }
  for (const Role role : {Role::WindowText, Role::Text, Role::ButtonText}) {
    colors.setColor(QPalette::Disabled, role, palette.tertiaryLabel);
  }
  return colors;
}

// For ends of the process that leave no time, such as a display that goes.
TarnLoftApp* running = nullptr;

}  // namespace

TarnLoftApp::TarnLoftApp(Opening opening)
    : library_(services_.forLibrary()),
      opening_(opening),
      menuBarPrefs_(services_.preferences, services_.log),
      updater_(services_.updater, services_.preferences, systemNow),
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
  services_.media.work.hold();  // the first frame has the cores to itself
  if (opening_ == Opening::window) {
    (void)windows();
  } else {
    followAppearance();
  }
  connect(&services_.appearance, &DesktopAppearance::darkChanged, this,
          &TarnLoftApp::followAppearance);
  connect(&terminationSignals_, &TerminationSignals::requested, this, [this] {
    sequel_ = Sequel::none;
    quitByForce();
  });
  connect(&updater_, &UpdaterViewModel::relaunchRequested, this,
          [this] { requestQuit(Sequel::newStart); });
  connect(&updater_, &UpdaterViewModel::installationBegun, this, &TarnLoftApp::showUpdates);
  connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &TarnLoftApp::saveAll);
  connect(qGuiApp, &QGuiApplication::aboutToQuit, this, [this] {
    if (!isQuitting_) saveAll();
  });
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &TarnLoftApp::followFocus);
  running = this;
  std::atexit([] {
    if (running) running->saveAll();
  });
}

AppWindows& TarnLoftApp::windows() {
  if (windows_) return *windows_;
  const auto hotKey = [this] {
    MenuBarController* const menuBar = appDelegate_.menuBar();
    return menuBar ? &menuBar->hotKeySettings() : nullptr;
  };
  windows_ = std::make_unique<AppWindows>(services_, library_, menuBarPrefs_, updater_, hotKey,
                                          opening_ == Opening::window);
  followAppearance();
  MainWindow& main = windows_->main;
  main.setMayClose([this] { return mayCloseWindow(); });
  connect(&windows_->engine, &QQmlEngine::quit, this, [this] { requestQuit(); });
  connect(&main, &MainWindow::settingsRequested, this, &TarnLoftApp::openSettings);
  connect(&main, &MainWindow::updateCheckRequested, this, &TarnLoftApp::checkForUpdates);
  connect(&main, &MainWindow::closed, this, &TarnLoftApp::windowClosed);
  connect(&windows_->settings, &SettingsWindow::closed, this, &TarnLoftApp::settingsClosed);
  return *windows_;
}

QQuickWindow* TarnLoftApp::mainWindow() const {
  return windows_ ? windows_->main.window() : nullptr;
}

QQuickWindow* TarnLoftApp::settingsWindow() const {
  return windows_ ? windows_->settings.window() : nullptr;
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
  if (!windows().main.open()) return false;
  QQuickWindow* const window = mainWindow();
  appDelegate_.setMainWindow(window);
  connect(window, &QQuickWindow::frameSwapped, this, &TarnLoftApp::firstFrameShown,
          Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
  appDelegate_.showMainWindow();
  return true;
}

void TarnLoftApp::openSettings() { windows().settings.open(mainWindow()); }

void TarnLoftApp::showUpdates() { windows().settings.openAtUpdates(mainWindow()); }

void TarnLoftApp::checkForUpdates() {
  showUpdates();
  updater_.checkForUpdates();
}

void TarnLoftApp::windowClosed() {
  if (mainWindow() || settingsWindow()) return;
  appDelegate_.lastWindowClosed();
}

// Some window managers give the keyboard to none that stands outside of the taskbar.
void TarnLoftApp::settingsClosed() {
  if (QQuickWindow* const window = mainWindow()) window->requestActivate();
  windowClosed();
}

void TarnLoftApp::firstFrameShown() {
  appDelegate_.installMenuBar();
  updater_.start();
  services_.media.work.resume();
  QTimer::singleShot(viewsPatience, this, [this] {
    windows().main.prepareSheets();
    windows().settings.prepare();
  });
  QTimer::singleShot(panelPause, this, [this] { appDelegate_.menuBar()->panel().prepare(); });
}

std::unique_ptr<MenuBarController> TarnLoftApp::makeMenuBar(std::function<void()> onOpenApp) {
  auto panel = std::make_unique<QuickGrabPanel>(
      [this]() -> QQmlEngine& { return windows().engine; },
      services_.forQuickGrab(library_, menuBarPrefs_), isScreenComposed);
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
      settingsWindow() || !appDelegate_.applicationShouldTerminateAfterLastWindowClosed();
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
  Alerts* const alerts = windows().main.alerts();
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
  const bool isDark = services_.appearance.isDark();
  if (windows_) windows_->theme.setDark(isDark);
  const QColor accent = shownColor(library_.preferences().defaultAccentHex());
  services_.appearance.setColors(toolkitColors(
      windows_ ? windows_->theme.palette()
               : Palette::make(isDark ? ColorScheme::dark : ColorScheme::light, accent)));
}

}  // namespace tarnloft
