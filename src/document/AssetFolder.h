#pragma once

#include "model/AssetRef.h"
#include "platform/FileStore.h"

namespace tarnloft {

// A package's `assets`, where files come in. A value that knows no document: any thread may use it
// for as long as the store lives. Nothing here touches a brand; the caller makes the item.
class AssetFolder {
 public:
  // Makes the folder, with its parents, if needed; refuses one that leads out of the package.
  static Result<AssetFolder> make(FileStore& files, const QString& packageURL);

  // Copies a file in under a new name that keeps its extension, or has "dat". Like `write`, it
  // fails if the folder has gone since: nothing revives a package that was deleted meanwhile.
  Result<AssetRef> copyIn(const QString& source) const;
  // Writes bytes under a new name with that extension, atomically.
  Result<AssetRef> write(const QByteArray& data, const QString& originalName,
                         const QString& extension) const;

  // Of a file that came in through this folder.
  QString pathOf(const AssetRef& asset) const;

 private:
  AssetFolder(FileStore& files, QString path) : files_(&files), path_(std::move(path)) {}

  FileStore* files_;
  QString path_;
};

}  // namespace tarnloft
