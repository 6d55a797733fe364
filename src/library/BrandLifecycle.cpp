#include "document/Package.h"
#include "library/LibraryStore.h"
#include "publish/BrandPageExporter.h"

namespace tarnloft {

BrandDocument* LibraryStore::createBrand(const QString& name) {
  auto created = BrandDocument::create(services_.document, libraryURL_, name);
  if (!created) {
    services_.document.log.write(QStringLiteral("failed to create brand: ") +
                                 created.error().message);
    return nullptr;
  }
  scan();
  select((*created)->packageURL());
  // The very document that made the package, not the one that was read from it.
  setOpenDocument(std::move(*created));
  return openDocument_.get();
}

void LibraryStore::renameSelectedBrand(const QString& name) {
  if (!openDocument_) return;
  openDocument_->edit([&](Brand& brand) { brand.name = name; });
  openDocument_->saveNow();
  FileStore& files = services_.document.files;
  const QString packageURL = openDocument_->packageURL();
  const QString target = Package::uniquePackageURL(files, libraryURL_, name);
  if (target == packageURL) return scan();
  (void)files.moveFolder(packageURL, target);
  auto moved = BrandDocument::load(services_.document, target);
  scan();
  select(target);
  setOpenDocument(std::move(moved));
}

void LibraryStore::duplicateBrand(const BrandSummary& brand) {
  FileStore& files = services_.document.files;
  const QString name = brand.name + QStringLiteral(" Copy");
  const QString target = Package::uniquePackageURL(files, libraryURL_, name);
  if (const auto copied = files.copyFolder(brand.packageURL, target); !copied) {
    services_.document.log.write(QStringLiteral("failed to duplicate brand: ") +
                                 copied.error().message);
    return;
  }
  if (const auto copy = BrandDocument::load(services_.document, target)) {
    copy->edit([&](Brand& value) {
      value.id = QUuid::createUuid();  // keeps the two rows apart in the order
      value.name = name;
    });
    copy->saveNow();
  }
  scan();
  select(target);
}

void LibraryStore::deleteBrand(const BrandSummary& brand) {
  const QString packageURL = brand.packageURL;  // the row may go with the scan
  if (openDocument_ && openDocument_->packageURL() == packageURL) {
    openDocument_->invalidate();  // a pending save must not bring the folder back
    setOpenDocument(nullptr);
  }
  (void)services_.trash.moveToTrash(packageURL);
  if (selection_ == packageURL) setOpenDocument(nullptr);
  scan();
  if (selection_ == packageURL) selectFirst();
}

void LibraryStore::exportBrandPage(const BrandSummary& brand) {
  const QString packageURL = brand.packageURL;
  if (selection_ != packageURL) select(packageURL);
  const bool isOpen = openDocument_ && openDocument_->packageURL() == packageURL;
  const auto loaded = isOpen ? nullptr : BrandDocument::load(services_.document, packageURL);
  const BrandDocument* document = isOpen ? openDocument_.get() : loaded.get();
  if (!document) return;
  BrandPageExporter::exportPage(*document, services_.document.files, services_.dialogs,
                                services_.viewer);
}

}  // namespace tarnloft
