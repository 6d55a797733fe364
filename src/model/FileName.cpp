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

QString lastPathComponent(const QString& path) {
  return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

QString pathExtension(const QString& path) {
  const qsizetype dot = extensionDot(path);
  return dot < 0 ? QString() : path.mid(dot + 1);
}

QString withoutPathExtension(const QString& path) {
  const qsizetype dot = extensionDot(path);
  return dot < 0 ? path : path.left(dot);
}

}  // namespace tarnloft
