#include "platform/desktop/FreedesktopTrash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace tarnloft {

Result<void> FreedesktopTrash::moveToTrash(const QString& path) {
  // Without this folder the toolkit makes its trash in the working directory.
  QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
  QFile file(path);
  if (file.moveToTrash()) return {};
  return failure(ErrorKind::io, file.errorString());
}

}  // namespace tarnloft
