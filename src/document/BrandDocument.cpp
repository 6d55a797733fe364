#include "document/BrandDocument.h"

#include "document/AtomicWrite.h"
#include "document/Package.h"
#include "model/Json.h"

#include <QScopedValueRollback>

#include <chrono>

namespace tarnloft {

using namespace std::chrono_literals;

BrandDocument::BrandDocument(const DocumentServices& services, QString packageURL, Brand brand)
    : services_(services), packageURL_(std::move(packageURL)), brand_(std::move(brand)) {
  saveWorkItem_.setSingleShot(true);
  saveWorkItem_.setTimerType(Qt::PreciseTimer);
  saveWorkItem_.setInterval(400ms);
  connect(&saveWorkItem_, &QTimer::timeout, this, &BrandDocument::saveNow);
}

Result<std::unique_ptr<BrandDocument>> BrandDocument::create(const DocumentServices& services,
                                                             const QString& folder,
                                                             const QString& name) {
  const QString packageURL = Package::uniquePackageURL(services.files, folder, name);
  for (const QString& path :
       {packageURL, Package::assetsPath(packageURL), Package::thumbnailsPath(packageURL)}) {
    if (auto made = services.files.makeFolder(path); !made) return tl::unexpected(made.error());
  }
  std::unique_ptr<BrandDocument> document(
      new BrandDocument(services, packageURL, Brand::create(name, services.clock)));
  document->saveNow();
  return document;
}

std::unique_ptr<BrandDocument> BrandDocument::load(const DocumentServices& services,
                                                   const QString& packageURL) {
  const auto file =
      Package::readJson(services.files, Package::manifestPath(packageURL), packageURL);
  if (!file) return nullptr;
  const auto brand = decode<Brand>(file->bytes);
  if (!brand) return nullptr;
  std::unique_ptr<BrandDocument> document(new BrandDocument(services, packageURL, *brand));
  document->known_ = {file->identity, *brand};
  return document;
}

void BrandDocument::setBrand(Brand brand) {
  brand_ = std::move(brand);
  emit brandChanged();
  scheduleSave();
}

void BrandDocument::scheduleSave() {
  if (invalidated_ || suppressSchedule_) return;
  saveWorkItem_.start();
}

void BrandDocument::saveNow() {
  if (invalidated_) return;
  saveWorkItem_.stop();
  {
    const QScopedValueRollback suppress(suppressSchedule_, true);
    edit([&](Brand& brand) { brand.updatedAt = services_.clock(); });
  }
  if (invalidated_) return;  // by one who was told of the change
  if (const auto written = writeManifest(); !written) {
    services_.log.write(QStringLiteral("failed to save ") + Package::manifestPath(packageURL_) +
                        QStringLiteral(": ") + written.error().message);
  }
}

Result<void> BrandDocument::writeManifest() {
  const auto json = encode(brand_);
  if (!json) return tl::unexpected(json.error());
  if (auto made = services_.files.makeFolder(packageURL_); !made) return made;
  if (auto kept = keepForeignManifest(); !kept) return kept;
  const QString manifest = Package::manifestPath(packageURL_);
  auto written = writeAtomically(services_.files, manifest, Durability::synced,
                                 [&](FileWriter& file) { return file.write(*json); });
  // After a failure another machine's manifest may be there that nobody has looked at yet.
  if (written) {
    const auto identity = services_.files.identity(manifest);
    known_ = {identity ? std::optional(*identity) : std::nullopt, brand_};
  }
  return written;
}

void BrandDocument::invalidate() {
  invalidated_ = true;
  saveWorkItem_.stop();
}

Result<std::unique_ptr<FileReader>> BrandDocument::openAsset(const AssetRef& asset) const {
  return Package::openAsset(services_.files, packageURL_, asset);
}

Result<QString> BrandDocument::assetPath(const AssetRef& asset) const {
  return Package::assetPath(services_.files, packageURL_, asset);
}

}  // namespace tarnloft
