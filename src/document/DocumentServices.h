#pragma once

#include "model/Timestamp.h"
#include "platform/DiskWork.h"
#include "platform/FileStore.h"
#include "platform/SystemLog.h"

#include <QUuid>

namespace tarnloft {

// What a document needs of its surroundings. Borrowed: all of it outlives every document.
struct DocumentServices {
  FileStore& files;
  SystemLog& log;
  Clock clock = systemNow;
  DiskWork& disk = immediateDisk();
  // Asked on the disk's thread by a save whose package has gone: where the package of that brand
  // stands by now, or `lost` itself if it may be made there anew, or why neither.
  std::function<Result<QString>(const QUuid& brand, const QString& lost)> findPackage = nullptr;
};

}  // namespace tarnloft
