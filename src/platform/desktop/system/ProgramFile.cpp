#include "platform/desktop/system/ProgramFile.h"

#include <QFile>

namespace tarnloft {
namespace {

// The system puts it behind the path of a file that has lost its name.
const QLatin1String deletedMark(" (deleted)");

QString startedFrom() { return QFile::symLinkTarget(QStringLiteral("/proc/self/exe")); }

}  // namespace

QString programFile() {
  QString path = startedFrom();
  if (path.endsWith(deletedMark)) path.chop(deletedMark.size());
  return path;
}

bool isProgramReplaced() { return startedFrom().endsWith(deletedMark); }

}  // namespace tarnloft
