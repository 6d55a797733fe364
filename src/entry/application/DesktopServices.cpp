#include "entry/application/DesktopServices.h"

#include "entry/SupportFolder.h"
#include "platform/desktop/window/DesktopColorSampler.h"

#include <QDir>

namespace tarnloft {

namespace {

std::unique_ptr<ColorSampler> makeColorSampler() { return std::make_unique<DesktopColorSampler>(); }

// The brand may be open again by now.
void addToClosed(LibraryStore& library, const DocumentServices& services, const QString& packageURL,
                 const QUuid& section, const QList<Item>& items) {
  BrandDocument* const open = library.openDocument();
  const bool isOpen = open && open->packageURL() == packageURL;
  const auto loaded = isOpen ? nullptr : BrandDocument::load(services, packageURL);
  BrandDocument* const document = isOpen ? open : loaded.get();
  if (!document) return;
  for (const Item& item : items) document->addItem(item, section);
  if (loaded) loaded->saveNow();
}

}  // namespace

LibraryServices DesktopServices::forLibrary() {
  return {{files, log},
          preferences,
          appearance,
          beep,
          trash,
          archiver,
          dialogs,
          viewer,
          makeColorSampler,
          SupportFolder::applicationSupportFolder(),
          QDir::tempPath()};
}

WorkspaceServices DesktopServices::forWorkspace(LibraryStore& library) {
  const auto landLate = [&library, services = DocumentServices{files, log}](
                            const QString& packageURL, const QUuid& section,
                            const QList<Item>& items) {
    addToClosed(library, services, packageURL, section, items);
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
          {types, fonts, workers, landLate},
          drops,
          {files, types, tiff},
          dragSession};
}

QString DesktopServices::stateFile() {
  // The toolkit of this version doesn't know the folder.
  const QString folder = qEnvironmentVariable("XDG_STATE_HOME");
  const bool usable = QDir::isAbsolutePath(folder);
  return (usable ? folder : QDir::homePath() + QStringLiteral("/.local/state")) +
         QStringLiteral("/tarnloft.ini");
}

}  // namespace tarnloft
