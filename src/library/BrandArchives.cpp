#include "document/AtomicWrite.h"
#include "document/Package.h"
#include "library/LibraryStore.h"
#include "model/FileName.h"
#include "model/Uuid.h"

#include <algorithm>

namespace tarnloft {
namespace {

const QString zipType = QStringLiteral("application/zip");

bool isLink(const FileStore& files, const QString& path) { return files.resolved(path) != path; }

}  // namespace

void LibraryStore::exportBrand(const BrandSummary& brand) {
  const QString packageURL = brand.packageURL;
  const auto path =
      services_.dialogs.savePath(brand.name + QStringLiteral(".tarnloft.zip"), zipType);
  if (!path) return;
  FileStore& files = services_.document.files;
  (void)files.remove(*path);
  // Not synced: an archive can be made again, and may weigh gigabytes.
  (void)writeAtomically(files, *path, Durability::atomic, [&](FileWriter& file) {
    return services_.archiver.archive(packageURL, file);
  });
  services_.viewer.reveal(*path);
}

void LibraryStore::exportSelectedBrand() {
  const auto row = std::find_if(brands_.cbegin(), brands_.cend(), [this](const auto& brand) {
    return selection_ == brand.packageURL;
  });
  if (row != brands_.cend()) exportBrand(BrandSummary(*row));
}

void LibraryStore::importBrand() {
  const auto path = services_.dialogs.openFileOrFolder({zipType}, Package::pathExtensions());
  if (path) importBrandArchive(*path);
}

void LibraryStore::importBrandArchive(const QString& path) {
  FileStore& files = services_.document.files;
  if (!Package::isPackagePath(path)) {
    const QString folder = services_.temporaryFolder + QStringLiteral("/ys-import-") +
                           canonicalString(QUuid::createUuid());
    importArchivedPackage(path, folder);
    (void)files.removeFolder(folder);
    return;
  }
  const QString target =
      Package::uniquePackageURL(files, libraryURL_, withoutPathExtension(lastPathComponent(path)));
  (void)files.copyFolder(path, target);
  finishImport(target);
}

void LibraryStore::importArchivedPackage(const QString& archive, const QString& folder) {
  FileStore& files = services_.document.files;
  if (!files.makeFolder(folder)) return;
  // Half a package would pass for a whole one.
  if (!services_.archiver.extract(archive, folder)) return;
  const auto found = findYewstack(folder);
  if (!found) return;
  const QString target = Package::uniquePackageURL(files, libraryURL_,
                                                   withoutPathExtension(lastPathComponent(*found)));
  // The temporary folder often stands on another file system.
  if (!files.moveFolder(*found, target)) (void)files.copyFolder(*found, target);
  finishImport(target);
}

std::optional<QString> LibraryStore::findYewstack(const QString& folder) const {
  const FileStore& files = services_.document.files;
  for (const QString& name : files.list(folder).value_or(QStringList())) {
    const QString path = folder + QLatin1Char('/') + name;
    if (isLink(files, path)) continue;
    if (Package::isPackagePath(name)) return path;
    if (!files.isFolder(path)) continue;
    if (auto found = findYewstack(path)) return found;
  }
  return std::nullopt;
}

void LibraryStore::finishImport(const QString& packageURL) {
  if (const auto document = BrandDocument::load(services_.document, packageURL)) {
    document->edit([&](Brand& brand) {
      brand.id = QUuid::createUuid();  // keeps it apart from the brand that it may be a copy of
      brand.name = withoutPathExtension(lastPathComponent(packageURL));
    });
    document->saveNow();
  }
  scan();
  select(packageURL);
}

}  // namespace tarnloft
