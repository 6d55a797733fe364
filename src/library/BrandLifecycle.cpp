#include "document/Package.h"
#include "library/LibraryStore.h"
#include "model/ShownText.h"
#include "publish/BrandPageExporter.h"

namespace tarnloft {

BrandDocument* LibraryStore::createBrand(const QString& name) {
  const auto create = [services = documentServices_, places = places_, folder = libraryURL_, name] {
    return places->checkFolder().and_then(
        [&] { return PackageWriter::create(services, folder, name); });
  };
  // The very package that was made, not one that was read from it.
  const auto made = std::make_shared<BrandDocument*>(nullptr);
  change(services_.document.disk, create, [this, made](Result<OpenedPackage>&& created) {
    if (!created) {
      services_.document.log.write(QStringLiteral("failed to create brand: ") +
                                   created.error().message);
      return tell(QStringLiteral("The brand couldn't be created"), created.error().message);
    }
    selection_ = created->packageURL;
    afterLoading_ = nullptr;
    emit selectionChanged();
    setOpenDocument(makeDocument(std::move(*created)));
    *made = openDocument_.get();
  });
  return *made;
}

void LibraryStore::renameSelectedBrand(const QString& name) {
  if (selection_) whenLoaded(*selection_, [this, name] { renameOpenBrand(name); });
}

void LibraryStore::renameOpenBrand(const QString& name) {
  if (!openDocument_) return;
  const QString before = openDocument_->brand().name;
  openDocument_->edit([&](Brand& brand) { brand.name = name; });
  openDocument_->saveNow();
  const auto renamed = [store = QPointer(this), before](const Result<QString>& packageURL) {
    if (!store) return;
    store->scan();
    if (packageURL) return;
    store->tell(QStringLiteral("The package of “%1” couldn't be renamed").arg(before),
                packageURL.error().message);
  };
  openDocument_->renamePackage(libraryURL_, renamed);
}

void LibraryStore::duplicateBrand(const BrandSummary& brand) {
  const QString name = brand.name + QStringLiteral(" Copy");
  const auto duplicate = [services = services_.document, packageURL = brand.packageURL,
                          folder = libraryURL_, name](Progress& progress) -> Result<QString> {
    FileStore& files = services.files;
    QString target = Package::uniquePackageURL(files, folder, name);
    if (auto copied = files.copyFolder(packageURL, target, progress); !copied) {
      return tl::unexpected(copied.error());
    }
    (void)PackageWriter::editClosed(services, target, [&](Brand& value) {
      value.id = QUuid::createUuid();  // keeps the two rows apart in the order
      value.name = name;
    });
    return target;
  };
  const auto failed = [this, original = brand.name](const Error& error) {
    services_.document.log.write(QStringLiteral("failed to duplicate brand: ") + error.message);
    tell(QStringLiteral("“%1” couldn't be duplicated").arg(original), error.message);
  };
  const QString told = QStringLiteral("Duplicating “%1”…").arg(shownText(brand.name, mostInTitle));
  whenSaved(brand.packageURL, [this, duplicate, failed, told](const Result<void>& saved) {
    if (!saved) return failed(saved.error());
    copyIn(told, duplicate, [this, failed](const Result<QString>& target) {
      target ? select(*target) : failed(target.error());
    });
  });
}

void LibraryStore::deleteBrand(const BrandSummary& brand) {
  deleteBy(
      brand,
      [&trash = services_.trash, packageURL = brand.packageURL] {
        return trash.moveToTrash(packageURL);
      },
      [this, brand](const Error& error) { emit trashRefused(brand, error.message); });
}

void LibraryStore::deleteBrandImmediately(const BrandSummary& brand) {
  deleteBy(
      brand,
      [&files = services_.document.files, packageURL = brand.packageURL] {
        return files.removeFolder(packageURL);
      },
      [this, brand](const Error& error) {
        tell(QStringLiteral("“%1” couldn't be deleted").arg(brand.name), error.message);
      });
}

// Its work is saved first, for the user may want it back; a save behind the removal would bring the
// folder back.
void LibraryStore::deleteBy(const BrandSummary& brand, std::function<Result<void>()> removal,
                            std::function<void(const Error&)> refused) {
  const QString packageURL = brand.packageURL;  // the row may go with the scan
  if (BrandDocument* const document = documentAt(packageURL)) {
    document->saveIfNeeded();
    document->holdSaving();
  }
  change(services_.document.disk, std::move(removal),
         [this, packageURL, refused = std::move(refused)](const Result<void>& removed) {
           if (removed) return brandGone(packageURL);
           if (BrandDocument* const document = documentAt(packageURL)) document->resumeSaving();
           refused(removed.error());
         });
}

void LibraryStore::brandGone(const QString& packageURL) {
  if (BrandDocument* const document = documentAt(packageURL)) document->invalidate();
  if (const auto kept = unsaved_.take(packageURL)) return;
  if (openDocument_ && openDocument_->packageURL() == packageURL) setOpenDocument(nullptr);
  if (selection_ == packageURL) selectFirst();
}

void LibraryStore::exportBrandPage(const BrandSummary& brand) {
  const QString packageURL = brand.packageURL;
  whenLoaded(packageURL, [this] { exportOpenBrandPage(); });
}

void LibraryStore::exportOpenBrandPage() {
  if (!openDocument_) return;
  const PageSource source = *openDocument_;
  const auto path = services_.dialogs.savePath(
      BrandPageExporter::suggestedFileName(source.brand.name), QStringLiteral("text/html"));
  if (!path) return;
  const auto write = [source, &files = services_.document.files, path = *path](Progress& progress) {
    return BrandPageExporter::writeFile(source, files, path, progress);
  };
  const QString told =
      QStringLiteral("Exporting the page of “%1”…").arg(shownText(source.brand.name, mostInTitle));
  copy(told, write, [this, path = *path](const Result<void>& written) {
    services_.viewer.reveal(path);
    if (!written)
      tell(QStringLiteral("The brand page couldn't be exported"), written.error().message);
  });
}

}  // namespace tarnloft
