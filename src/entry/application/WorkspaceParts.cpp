#include "entry/application/WorkspaceParts.h"

#include "assets/TiffFlavour.h"
#include "platform/desktop/window/DesktopColorSampler.h"

namespace tarnloft {

WorkspaceParts::WorkspaceParts(DesktopServices& desktop, LibraryStore& library)
    : desktop_(desktop), library_(library) {}

WorkspaceServices WorkspaceParts::services() {
  const auto addToClosed = [this](const QString& packageURL, const QUuid& section,
                                  const QList<Item>& items) {
    library_.addItems(packageURL, section, items);
  };
  const auto tiff = [this](const QString& path, qint64 maxBytes) {
    return TiffFlavour::make(images_, path, maxBytes);
  };
  return {library_,
          desktop_.preferences,
          pasteboard_,
          desktop_.dialogs,
          [] { return std::make_unique<DesktopColorSampler>(); },
          thumbnails_,
          posters_,
          {types_, fonts_, importers_, addToClosed},
          drops_,
          {desktop_.files, types_, tiff},
          dragSession_};
}

}  // namespace tarnloft
