#pragma once

#include "assets/DropImport.h"

namespace tarnloft {

// Files that a user chose, on their way into a package without becoming items of their own.
struct AssetImport {
  QStringList paths;
  // A worker's, for each copy before it is told of; null for nothing to read.
  std::function<void(const QString& copy)> read = nullptr;
  // Gets each copy as soon as it and those in front of it are whole, while the document is open.
  std::function<void(const AssetRef& asset)> arrived;
};

// Copies the files into the document's package, away from the main thread. `services.failed` is
// told of those that couldn't be brought in, and of those whose document has been closed meanwhile.
// Main thread.
void importAssets(const ImportServices& services, const AssetImport& import,
                  BrandDocument& document);

}  // namespace tarnloft
