#include "entry/application/DesktopServices.h"

#include "entry/SupportFolder.h"
#include "platform/desktop/window/DesktopColorSampler.h"

#include <QDeadlineTimer>
#include <QDir>

namespace tarnloft {

namespace {

std::unique_ptr<ColorSampler> makeColorSampler() { return std::make_unique<DesktopColorSampler>(); }

}  // namespace

// Before anything else looks at the disk, on whose thread all does.
DesktopServices::DesktopServices() {
  disk.run([this] { SupportFolder::migrateIfNeeded(files, log); }, [] {}, DiskWork::Patience::none);
}

LibraryServices DesktopServices::forLibrary() {
  return {{files, log, systemNow, disk},
          preferences,
          appearance,
          beep,
          trash,
          archiver,
          dialogs,
          viewer,
          makeColorSampler,
          SupportFolder::applicationSupportFolder(),
          QDir::tempPath(),
          copies};
}

WorkspaceServices DesktopServices::forWorkspace(LibraryStore& library) {
  const auto landLate = [&library](const BrandPlace& brand, const QUuid& section,
                                   const QList<Item>& items) {
    library.addItems(brand, section, items);
  };
  const auto tellFailed = [&library](const QStringList& names, const QString& reason) {
    const QString what = names.size() == 1 ? QStringLiteral("“%1”").arg(names.first())
                                           : QStringLiteral("%1 files").arg(names.size());
    library.tell(what + QStringLiteral(" couldn't be added"), reason);
  };
  const auto tiff = [this](const QString& path, qint64 maxBytes) {
    return media.tiff(path, maxBytes);
  };
  return {library,
          preferences,
          pasteboard,
          dialogs,
          makeColorSampler,
          media.thumbnails,
          media.posters,
          {types, fonts, workers, landLate, tellFailed},
          drops,
          {files, types, tiff},
          dragSession};
}

bool DesktopServices::finish(std::chrono::milliseconds patience) {
  const QDeadlineTimer deadline(patience);
  const auto remaining = [&] { return int(deadline.remainingTime()); };
  workers.clear();
  return media.work.finish(std::chrono::milliseconds(remaining())) &&
         workers.waitForDone(remaining()) && disk.finish(std::chrono::milliseconds(remaining())) &&
         copies.finish({}) && QThreadPool::globalInstance()->waitForDone(remaining());
}

QString DesktopServices::stateFile() {
  // The toolkit of this version doesn't know the folder.
  const QString folder = qEnvironmentVariable("XDG_STATE_HOME");
  const bool usable = QDir::isAbsolutePath(folder);
  return (usable ? folder : QDir::homePath() + QStringLiteral("/.local/state")) +
         QStringLiteral("/tarnloft.ini");
}

}  // namespace tarnloft
