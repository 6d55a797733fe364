#pragma once

#include "model/AssetRef.h"
#include "platform/Images.h"

#include <QUuid>

namespace tarnloft {

// What one opening of the export sheet works on.
struct ExportTarget {
  QUuid id;  // fresh for every opening
  QString url;
  QString baseName;   // the client's name for the file, without its extension
  QSizeF nativeSize;  // 1024 by 1024 if it can't be read

  bool operator==(const ExportTarget&) const = default;

  // For the file of `asset` at the path `url`.
  static ExportTarget create(Images& images, const QString& url, const AssetRef& asset);
};

}  // namespace tarnloft
