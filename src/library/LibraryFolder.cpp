#include "library/LibraryFolder.h"

#include "document/Package.h"

namespace tarnloft {
namespace {

tl::unexpected<Error> refusal(const QString& path, const QString& reason) {
  return failure(ErrorKind::refused, QStringLiteral("“%1” %2").arg(path, reason));
}

// The package that the path leads into or is; empty for none.
QString packageAround(QString path) {
  while (!path.isEmpty() && !Package::isPackagePath(path)) {
    const QString folder = Package::folderOf(path);
    path = folder == path ? QString() : folder;
  }
  return path;
}

}  // namespace

Result<void> LibraryFolder::check(FileStore& files, const QString& path) {
  if (const QString package = packageAround(path); !package.isEmpty()) {
    return refusal(package, QStringLiteral("is a brand. Choose the folder that it is in."));
  }
  if (files.exists(path) && !files.isFolder(path)) {
    return refusal(path, QStringLiteral("isn't a folder."));
  }
  if (const auto made = files.makeFolder(path); !made) {
    return refusal(path, QStringLiteral("can't be made: ") + made.error().message);
  }
  if (const auto names = files.list(path); !names) {
    return refusal(path, QStringLiteral("can't be read: ") + names.error().message);
  }
  const auto written = files.createTemporary(path + QStringLiteral("/.library"));
  if (!written) {
    return refusal(path, QStringLiteral("can't be written to: ") + written.error().message);
  }
  return {};
}

}  // namespace tarnloft
