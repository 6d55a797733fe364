#include "entry/SupportFolder.h"

#include <QStandardPaths>

namespace tarnloft {

QString SupportFolder::applicationSupportFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

void SupportFolder::migrateIfNeeded(FileStore& files, SystemLog& log,
                                    const QString& applicationSupport) {
  const QString present = applicationSupport + QStringLiteral("/Tarn Loft");
  const QString old = applicationSupport + QStringLiteral("/Fenwright");
  if (files.exists(present) || !files.isFolder(old)) return;
  if (const auto moved = files.moveFolder(old, present); moved) {
    log.write(QStringLiteral("migrated support folder from “Fenwright” to “Tarn Loft”"));
  } else {
    log.write(QStringLiteral("support folder migration failed: ") + moved.error().message);
  }
}

}  // namespace tarnloft
