#include "shell/ShellCommands.h"

#include "publish/BrandPageExporter.h"

namespace tarnloft {

ShellCommands::ShellCommands(LibraryStore& library, const LibraryServices& services,
                             QObject* parent)
    : QObject(parent), library_(library), services_(services) {
  connect(&library, &LibraryStore::selectionChanged, this, &ShellCommands::hasSelectionChanged);
}

void ShellCommands::exportBrandPage() {
  if (!library_.openDocument()) return;
  BrandPageExporter::exportPage(*library_.openDocument(), services_.document.files,
                                services_.dialogs, services_.viewer);
}

}  // namespace tarnloft
