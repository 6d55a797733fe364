#pragma once

#include "model/AssetRef.h"
#include "platform/FileStore.h"
#include "platform/Images.h"

#include <QUuid>

namespace tarnloft {

// What one opening of the export sheet works on.
struct ExportTarget {
  QUuid id;  // fresh for every opening
  QString url;
  QString baseName;   // the client's name for the file, without its extension
  QSizeF nativeSize;  // 1024 by 1024 if it can't be read
  // The one that the file is in, held open, as its package may be renamed meanwhile. Or null.
  std::shared_ptr<OpenFolder> folder = {};

  bool operator==(const ExportTarget&) const = default;

  // For the file of `asset` at the path `url`.
  static ExportTarget create(Images& images, const QString& url, const AssetRef& asset);

  // Where the file is now. Any thread.
  QString path() const;
};

}  // namespace tarnloft
