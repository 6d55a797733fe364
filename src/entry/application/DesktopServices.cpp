#include "entry/application/DesktopServices.h"

#include "entry/SupportFolder.h"
#include "platform/desktop/window/DesktopColorSampler.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>

#include <dlfcn.h>
#include <utility>

namespace tarnloft {

// Before anything else looks at the disk, on whose thread all does.
DesktopServices::DesktopServices() {
  disk.run([this] { SupportFolder::migrateIfNeeded(files, log); }, [] {}, DiskWork::Patience::none);
}

std::unique_ptr<ColorSampler> DesktopServices::makeColorSampler() const {
  return std::make_unique<DesktopColorSampler>([this](const QString& reason) {
    tell(QStringLiteral("A color can't be picked from the screen"),
         QStringLiteral("This desktop has no color picker for programs: ") + reason);
  });
}

LibraryServices DesktopServices::forLibrary() {
  return {.document = {.files = files, .log = log, .clock = systemNow, .disk = disk},
          .preferences = preferences,
          .appearance = appearance,
          .beep = beep,
          .trash = trash,
          .archiver = archiver,
          .dialogs = dialogs,
          .viewer = viewer,
          .makeColorSampler = [this] { return makeColorSampler(); },
          .applicationSupport = SupportFolder::applicationSupportFolder(),
          .temporaryFolder = QDir::tempPath(),
          .copies = copies,
          .searches = searches,
          .openingFile = stateFile("tarnloft-opening"),
          .plain = plain};
}

WorkspaceServices DesktopServices::forWorkspace(LibraryStore& library) {
  const auto landLate = [&library](const BrandPlace& brand, const QUuid& section,
                                   const QList<Item>& items) {
    library.addItems(brand, section, items);
  };
  const auto tellFailed = [this](const QStringList& names, const QString& reason) {
    const QString what = names.size() == 1 ? QStringLiteral("“%1”").arg(names.first())
                                           : QStringLiteral("%1 files").arg(names.size());
    tell(what + QStringLiteral(" couldn't be added"), reason);
  };
  return {.library = library,
          .preferences = preferences,
          .pasteboard = pasteboard,
          .dialogs = dialogs,
          .viewer = viewer,
          .thumbnails = media.thumbnails,
          .posters = media.posters,
          .specs = media.specs,
          .clipPlayers = media.clipPlayers,
          .work = media.work,
          .imports = {.types = types,
                      .fonts = fonts,
                      .workers = workers,
                      .addToClosed = landLate,
                      .failed = tellFailed,
                      .told = &library.longWork()},
          .drops = drops,
          .drags = {.files = files, .types = types, .images = media.images},
          .dragThreads = dragThreads,
          .dragSession = dragSession};
}

QuickGrabServices DesktopServices::forQuickGrab(LibraryStore& library, MenuBarPrefs& prefs) {
  return {.library = library,
          .prefs = prefs,
          .pasteboard = pasteboard,
          .thumbnails = media.thumbnails,
          .files = files,
          .dragSession = dragSession,
          .fonts = fonts,
          .workers = workers,
          .dragThreads = dragThreads};
}

SettingsServices DesktopServices::forSettings(LibraryStore& library, MenuBarPrefs& prefs,
                                              UpdaterViewModel& updates,
                                              std::function<HotKeySettings*()> key) {
  return {.library = library,
          .menuBar = prefs,
          .dialogs = dialogs,
          .viewer = viewer,
          .statusItem = statusItem,
          .taskbar = taskbar,
          .loginItem = autostart,
          .updater = updates,
          .hotKey = std::move(key)};
}

bool DesktopServices::finish(std::chrono::milliseconds patience) {
  const QDeadlineTimer deadline(patience);
  const auto remaining = [&] { return int(deadline.remainingTime()); };
  workers.clear();
  return media.work.finish(std::chrono::milliseconds(remaining())) &&
         fonts.finish(std::chrono::milliseconds(remaining())) &&
         media.sharedThumbnails.finish(std::chrono::milliseconds(remaining())) &&
         media.clipPlayers.finish(std::chrono::milliseconds(remaining())) &&
         workers.waitForDone(remaining()) && disk.finish(std::chrono::milliseconds(remaining())) &&
         searches.finish(std::chrono::milliseconds(remaining())) && copies.finish({}) &&
         dragThreads.waitForDone(remaining());
}

// That of the module which holds this, wherever it was installed.
QString DesktopServices::decoderProgram() {
  Dl_info module;
  if (::dladdr(reinterpret_cast<const void*>(&DesktopServices::decoderProgram), &module) == 0) {
    return {};
  }
  const QFileInfo file(QFile::decodeName(module.dli_fname));
  return file.absolutePath() + QStringLiteral("/tarnloft-decoder");
}

QString DesktopServices::package() { return QStringLiteral(TARNLOFT_PACKAGE); }

QString DesktopServices::stateFile(const char* name) {
  // The toolkit of this version doesn't know the folder.
  const QString folder = qEnvironmentVariable("XDG_STATE_HOME");
  const bool usable = QDir::isAbsolutePath(folder);
  return (usable ? folder : QDir::homePath() + QStringLiteral("/.local/state")) + QLatin1Char('/') +
         QLatin1String(name);
}

}  // namespace tarnloft
