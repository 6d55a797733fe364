#pragma once

#include "entry/application/MediaServices.h"
#include "entry/late/LateServices.h"
#include "platform/desktop/dragging/MimeDrops.h"
#include "platform/desktop/dragging/QtDragSession.h"
#include "platform/desktop/files/DiskThread.h"
#include "platform/desktop/files/PosixFileStore.h"
#include "platform/desktop/fonts/CheckedFonts.h"
#include "platform/desktop/hotkey/DesktopHotKey.h"
#include "platform/desktop/system/AutostartEntry.h"
#include "platform/desktop/system/IniPreferences.h"
#include "platform/desktop/system/MimeContentTypes.h"
#include "platform/desktop/system/Syslog.h"
#include "platform/desktop/updates/PackageKitUpdater.h"
#include "platform/desktop/window/DesktopAppearance.h"
#include "platform/desktop/window/DesktopBeep.h"
#include "platform/desktop/window/DesktopFileDialogs.h"
#include "platform/desktop/window/DesktopFileViewer.h"
#include "platform/desktop/window/DesktopMotion.h"
#include "platform/desktop/window/DesktopPasteboard.h"
#include "platform/desktop/window/DesktopStatusItem.h"
#include "platform/desktop/window/DesktopTaskbar.h"
#include "quickgrab/panel/QuickGrab.h"
#include "settings/SettingsModel.h"
#include "workspace/WorkspaceServices.h"

#include <QCoreApplication>
#include <QThreadPool>

namespace tarnloft {

// What the windows' program uses of the desktop, each made once.
struct DesktopServices {
  DesktopServices();

  PosixFileStore files;
  Syslog log;
  IniPreferences preferences{log};
  IniPreferences state{stateFile(), log};  // what windows keep, which is nobody's preference
  DesktopBeep beep;
  LateTrash trash;
  LateArchiver archiver;
  DesktopFileDialogs dialogs{state};
  DesktopFileViewer viewer;
  DesktopAppearance appearance;
  DesktopMotion motion;
  DesktopPasteboard pasteboard;
  DesktopStatusItem statusItem;
  DesktopTaskbar taskbar;
  AutostartEntry autostart{AutostartEntry::userFolder(), QCoreApplication::applicationFilePath()};
  const std::unique_ptr<GlobalHotKey> hotKey = makeDesktopHotKey(log);
  MimeContentTypes types;
  const std::shared_ptr<decoding::DecoderPool> decoders =
      std::make_shared<decoding::DecoderPool>(decoderProgram());
  CheckedFonts fonts{decoders, log};
  QtDragSession dragSession;
  const std::shared_ptr<PlainBrands> plain = std::make_shared<PlainBrands>();
  MediaServices media{files, decoders, *plain};
  DiskThread disk;
  DiskThread copies;
  DiskThread searches;
  QThreadPool workers;      // of what is dropped; waited for before the others go
  QThreadPool dragThreads;  // not the common one: the toolkit waits for that while it draws
  MimeDrops drops{workers};
  PackageKitUpdater updater{QDBusConnection::systemBus, package()};

  // Tells the user that something failed: the library's, once there is one.
  std::function<void(const QString& title, const QString& message)> tell;

  LibraryServices forLibrary();
  WorkspaceServices forWorkspace(LibraryStore& library);
  QuickGrabServices forQuickGrab(LibraryStore& library, MenuBarPrefs& prefs);
  SettingsServices forSettings(LibraryStore& library, MenuBarPrefs& prefs,
                               UpdaterViewModel& updates, std::function<HotKeySettings*()> key);

  // For the end: forgets work that hasn't begun, and waits for threads that use any of this, at
  // most so long. False if some still do.
  bool finish(std::chrono::milliseconds patience);

  // Beside the module that holds this.
  static QString decoderProgram();

  // That which this was built for; empty for none.
  static QString package();

  // A file of ours in the user's folder for state.
  static QString stateFile(const char* name = "tarnloft.ini");

 private:
  std::unique_ptr<ColorSampler> makeColorSampler() const;
};

}  // namespace tarnloft
