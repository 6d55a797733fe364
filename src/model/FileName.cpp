#include "model/FileName.h"

namespace tarnloft {
namespace {

// Position of the dot in front of the extension, or -1.
qsizetype extensionDot(const QString& path) {
  const qsizetype nameAt = path.lastIndexOf(QLatin1Char('/')) + 1;
  const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
  return dot > nameAt && dot < path.size() - 1 ? dot : -1;
}

}  // namespace

QString pathExtension(const QString& path) {
  const qsizetype dot = extensionDot(path);
  return dot < 0 ? QString() : path.mid(dot + 1);
}

QString lastPathComponent(const QString& path) {
  qsizetype end = path.size();
  while (end > 0 && path.at(end - 1) == QLatin1Char('/')) --end;
  const QString trimmed = path.left(end);
  return trimmed.mid(trimmed.lastIndexOf(QLatin1Char('/')) + 1);
}

bool isPlainFileName(const QString& name) {
  return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
         !name.contains(QLatin1Char('/')) && !name.contains(QChar(u'\0'));
}

QString withoutPathExtension(const QString& path) {
  const qsizetype dot = extensionDot(path);
  return dot < 0 ? path : path.left(dot);
}

}  // namespace tarnloft
