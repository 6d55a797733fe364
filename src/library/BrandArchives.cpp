#include "document/AtomicWrite.h"
#include "document/Package.h"
#include "library/LibraryStore.h"
#include "model/FileName.h"
#include "model/ShownText.h"
#include "model/Uuid.h"

#include <QFileInfo>

#include <algorithm>

namespace tarnloft {
namespace {

const QString zipType = QStringLiteral("application/zip");

// Brings foreign packages into a library folder. On the thread for copies.
struct PackageImport {
  DocumentServices services;
  Archiver& archiver;
  QString library;
  QString temporaryFolder;

  // Gives the package's new path.
  Result<QString> bringIn(const QString& path, Progress& progress) const {
    return Package::isPackagePath(path) ? copyIn(path, progress) : unpack(path, progress);
  }

 private:
  QString targetFor(const QString& package) const {
    return Package::uniquePackageURL(services.files, library,
                                     withoutPathExtension(lastPathComponent(package)));
  }

  Result<QString> copyIn(const QString& package, Progress& progress) const {
    const QString target = targetFor(package);
    return services.files.copyFolder(package, target, progress).map([&] { return adopt(target); });
  }

  Result<QString> unpack(const QString& archive, Progress& progress) const {
    const QString folder =
        temporaryFolder + QStringLiteral("/ys-import-") + canonicalString(QUuid::createUuid());
    auto brought = services.files
                       .makeFolder(folder)
                       // Half a package would pass for a whole one.
                       .and_then([&] { return archiver.extract(archive, folder, progress); })
                       .and_then([&] { return bringFrom(folder, progress); });
    (void)services.files.removeFolder(folder);
    return brought;
  }

  Result<QString> bringFrom(const QString& folder, Progress& progress) const {
    const auto found = findYewstack(folder);
    if (!found) return failure(ErrorKind::notFound, QStringLiteral("It holds no brand."));
    if (auto synced = services.files.syncTree(*found); !synced) {
      return tl::unexpected(synced.error());
    }
    const QString target = targetFor(*found);
    if (services.files.moveFolder(*found, target)) return adopt(target);
    // The temporary folder often stands on another file system.
    return copyIn(*found, progress);
  }

  std::optional<QString> findYewstack(const QString& folder) const {
    const FileStore& files = services.files;
    for (const QString& name : files.list(folder).value_or(QStringList())) {
      const QString path = folder + QLatin1Char('/') + name;
      const bool isLink = files.resolved(path) != path;
      if (isLink) continue;
      if (Package::isPackagePath(name)) return path;
      if (!files.isFolder(path)) continue;
      if (auto found = findYewstack(path)) return found;
    }
    return std::nullopt;
  }

  // One that doesn't read is kept and listed under its folder's name.
  QString adopt(const QString& packageURL) const {
    (void)PackageWriter::editClosed(services, packageURL, [&](Brand& brand) {
      brand.id = QUuid::createUuid();  // keeps it apart from the brand that it may be a copy of
      brand.name = withoutPathExtension(lastPathComponent(packageURL));
    });
    return packageURL;
  }
};

}  // namespace

void LibraryStore::exportBrand(const BrandSummary& brand) {
  const QString packageURL = brand.packageURL;
  const auto path = services_.dialogs.savePath(
      Package::fileNameFor(brand.name) + QStringLiteral(".tarnloft.zip"), zipType);
  if (!path) return;
  const auto done = [this, path = *path, name = brand.name](const Result<void>& exported) {
    services_.viewer.reveal(path);
    if (exported) return;
    tell(QStringLiteral("“%1” couldn't be exported").arg(name), exported.error().message);
  };
  // Replaced only by a whole archive. Not synced: it can be made again, and may weigh gigabytes.
  const auto write = [&files = services_.document.files, &archiver = services_.archiver, packageURL,
                      path = *path](Progress& progress) {
    return writeAtomically(files, path, Durability::atomic, [&](FileWriter& file) {
      return archiver.archive(packageURL, file, progress);
    });
  };
  whenSaved(packageURL, [this, write, done, name = brand.name](const Result<void>& saved) {
    if (!saved) return done(saved);
    copy(QStringLiteral("Exporting “%1”…").arg(shownText(name, mostInTitle)), write, done);
  });
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

// By another way to the library's folder, too. Its disk may not answer: not the main thread's nor
// the saves' to ask.
void LibraryStore::openFile(const QString& path) {
  const QString home = libraryURL_, folder = QFileInfo(path).path();
  const auto isOurs = [&files = services_.document.files, home, folder] {
    const auto followed = [&files](const QString& one) {
      return files.identity(one + QStringLiteral("/."));  // behind the dot links are followed
    };
    const auto ours = followed(home);
    return folder == home || (ours && followed(folder) == ours);
  };
  services_.copies.ask(isOurs, [store = QPointer(this), path, home](bool itIs) {
    if (!store) return;
    itIs ? store->select(home + QLatin1Char('/') + lastPathComponent(path))
         : store->importBrandArchive(path);
  });
}

void LibraryStore::importBrandArchive(const QString& path) {
  const PackageImport import{services_.document, services_.archiver, libraryURL_,
                             services_.temporaryFolder};
  const QString name = lastPathComponent(path);
  const auto bringIn = [import, places = places_, path](Progress& progress) {
    return places->checkFolder().and_then([&] { return import.bringIn(path, progress); });
  };
  copyIn(QStringLiteral("Importing “%1”…").arg(name), bringIn,
         [this, name](const Result<QString>& packageURL) {
           if (packageURL) return select(*packageURL);
           tell(QStringLiteral("“%1” couldn't be imported").arg(name), packageURL.error().message);
         });
}

}  // namespace tarnloft
