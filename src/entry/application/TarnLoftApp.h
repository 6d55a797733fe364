#pragma once

#include "entry/application/AppDelegate.h"
#include "entry/application/AppWindows.h"
#include "entry/application/DesktopServices.h"
#include "library/LibraryStore.h"
#include "platform/desktop/system/TerminationSignals.h"
#include "updates/UpdaterViewModel.h"

namespace tarnloft {

// The program with its windows: makes each long-lived object once and hands it down. Needs a
// QApplication. Main thread.
class TarnLoftApp : public QObject {
 public:
  // What it begins with.
  enum class Opening { window, nothing };

  // What shall be when it has ended.
  enum class Sequel { none, newStart };

  explicit TarnLoftApp(Opening opening);
  ~TarnLoftApp() override;
  Q_DISABLE_COPY_MOVE(TarnLoftApp)

  // Opens what it begins with. False if that can't be made.
  bool start();

  // Shows the quick grab panel.
  void showQuickGrab();
  // Does what the desktop knows by that name: "quick-grab", "new-brand", "preferences". Any other
  // brings the main window.
  void perform(const QString& action);
  // Brings the main window, and the archives and packages at these paths into the library.
  void open(const QStringList& paths);

  AppDelegate& appDelegate() { return appDelegate_; }

  // Quits once all that the user did is on disk, else asks.
  void requestQuit(Sequel sequel = Sequel::none);
  Sequel sequel() const { return sequel_; }

  // To be called behind the event loop: waits a moment for threads at work. False if some still
  // are, held up by a disk: nothing that they use may go then, this object included.
  bool finish();

 private:
  AppWindows& windows();
  QQuickWindow* mainWindow() const;      // null while it is closed
  QQuickWindow* settingsWindow() const;  // null while it is closed
  bool openMainWindow();
  void openSettings();
  void showUpdates();
  void checkForUpdates();
  void windowClosed();
  void settingsClosed();
  void firstFrameShown();
  std::unique_ptr<MenuBarController> makeMenuBar(std::function<void()> onOpenApp);
  void followAppearance();
  void followFocus();
  bool mayCloseWindow();
  void askToQuit();
  void quitByForce();
  bool saveAll();

  DesktopServices services_;
  LibraryStore library_;
  const Opening opening_;
  MenuBarPrefs menuBarPrefs_;
  UpdaterViewModel updater_;
  std::unique_ptr<AppWindows> windows_;  // null until one is wanted
  AppDelegate appDelegate_;
  TerminationSignals terminationSignals_;
  bool isQuitting_ = false;  // whatever isn't saved
  Sequel sequel_ = Sequel::none;
};

}  // namespace tarnloft
