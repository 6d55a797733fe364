#pragma once

#include "model/AssetRef.h"
#include "platform/FileStore.h"

namespace tarnloft {

// A package's `assets`, where files come in, held open: they come in wherever the package is moved
// meanwhile. A value that knows no document: any thread may use it for as long as the store lives.
// Nothing here touches a brand; the caller makes the item. docs/saving.md tells the steps.
class AssetFolder {
 public:
  // Makes the folder, with its parents, if needed; refuses one that leads out of the package.
  static Result<AssetFolder> make(FileStore& files, const QString& packageURL);

  // Copies a file in under a new name that keeps its extension, or has "dat". Like `write`, it
  // fails if the folder was deleted since: nothing revives a package.
  Result<AssetRef> copyIn(const QString& source, Progress& progress) const;
  // Writes bytes under a new name with that extension.
  Result<AssetRef> write(const QByteArray& data, const QString& originalName,
                         const QString& extension) const;

  // Where a file that came in through this folder stands now; fails if the folder was deleted.
  Result<QString> pathOf(const AssetRef& asset) const;

 private:
  explicit AssetFolder(std::shared_ptr<OpenFolder> folder) : folder_(std::move(folder)) {}

  std::shared_ptr<OpenFolder> folder_;
};

}  // namespace tarnloft
