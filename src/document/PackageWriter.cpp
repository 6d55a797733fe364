#include "document/PackageWriter.h"

#include "document/DistinctIDs.h"
#include "document/Package.h"
#include "model/Json.h"
#include "model/RecordView.h"

#include <chrono>
#include <utility>

namespace tarnloft {
namespace {

using namespace std::chrono_literals;

constexpr auto strayAge = 24h;

// What the program could not read again it must not write over what it can.
Result<QByteArray> readable(const QByteArray& json) {
  return Package::checkedSize(json).and_then([](const QByteArray& checked) -> Result<QByteArray> {
    const auto read = RecordView<Brand>::parse(checked);
    return read ? Result<QByteArray>(checked) : tl::unexpected(read.error());
  });
}

// A rename changes a file's own record, and nothing else of its identity.
bool isSameFile(const FileIdentity& a, const FileIdentity& b) {
  return a.device == b.device && a.inode == b.inode && a.size == b.size && a.modified == b.modified;
}

bool isOfNewerProgram(const Decoded<Brand>& manifest) {
  return manifest.hasUnknownKeys || manifest.record.schemaVersion != Brand().schemaVersion;
}

}  // namespace

PackageWriter::PackageWriter(const DocumentServices& services, QString packageURL, Known known)
    : services_(services), packageURL_(std::move(packageURL)), known_(std::move(known)) {}

Result<OpenedPackage> PackageWriter::open(const DocumentServices& services,
                                          const QString& packageURL) {
  const auto file =
      Package::readJson(services.files, Package::manifestPath(packageURL), packageURL);
  if (!file) return tl::unexpected(file.error());
  const auto manifest = decodeNoting<Brand>(file->bytes);
  if (!manifest) return tl::unexpected(manifest.error());
  const Brand& brand = manifest->record;
  std::shared_ptr<PackageWriter> writer(new PackageWriter(
      services, packageURL, {file->identity, brand, isOfNewerProgram(*manifest)}));
  return OpenedPackage{std::move(writer), packageURL, withDistinctIDs(brand), {}};
}

Result<OpenedPackage> PackageWriter::create(const DocumentServices& services, const QString& folder,
                                            const QString& name) {
  const QString packageURL = Package::uniquePackageURL(services.files, folder, name);
  for (const QString& path :
       {packageURL, Package::assetsPath(packageURL), Package::thumbnailsPath(packageURL)}) {
    if (auto made = services.files.makeFolder(path); !made) return tl::unexpected(made.error());
  }
  std::shared_ptr<PackageWriter> writer(new PackageWriter(services, packageURL, {}));
  const Brand brand = Brand::create(name, services.clock);
  writer->stage(brand, 0);
  const SaveReport report = writer->saveStaged();
  return OpenedPackage{std::move(writer), packageURL, brand, report.written};
}

Result<void> PackageWriter::writeClosed(const DocumentServices& services, const QString& packageURL,
                                        const Brand& brand) {
  const auto opened = open(services, packageURL);
  if (opened) return opened->writer->writeAt(services.clock(), brand);
  return PackageWriter(services, packageURL, {}).writeAt(services.clock(), brand);
}

Result<void> PackageWriter::editClosed(const DocumentServices& services, const QString& packageURL,
                                       const std::function<void(Brand&)>& change) {
  const auto opened = open(services, packageURL);
  if (!opened) return tl::unexpected(opened.error());
  Brand brand = opened->brand;
  change(brand);
  return opened->writer->writeAt(services.clock(), brand);
}

void PackageWriter::stage(const Brand& brand, quint64 revision) {
  const QMutexLocker lock(&mutex_);
  staged_ = {brand, revision};
}

std::optional<PackageWriter::Staged> PackageWriter::takeStaged() {
  const QMutexLocker lock(&mutex_);
  return std::exchange(staged_, std::nullopt);
}

SaveReport PackageWriter::saveStaged() {
  using Place = SaveReport::Place;
  const auto staged = takeStaged();
  if (!staged || isClosed_) {
    SaveReport again = lastReport_;
    again.place = Place::same;  // told once
    return again;
  }
  const bool isUntold = lastReport_.place == Place::remade && !lastReport_.written;
  lastReport_ = {{}, staged->revision, isUntold ? Place::remade : Place::same, packageURL_};
  lastReport_.written = write(staged->brand);
  lastReport_.packageURL = packageURL_;
  return lastReport_;
}

Result<void> PackageWriter::writeAt(Timestamp moment, Brand brand) {
  brand.updatedAt = moment;
  return write(brand);
}

Result<void> PackageWriter::write(const Brand& brand) {
  const auto json = encode(brand).and_then(readable);
  if (!json) return tl::unexpected(json.error());
  // By the id in its manifest: a copy with another's id gets its own with this save.
  const QUuid id = known_.brand.id.isNull() ? brand.id : known_.brand.id;
  return findPackage(id).and_then([&] { return keepPresent(); }).and_then([&] {
    return replaceManifest(*json, brand);
  });
}

// Another machine may have renamed the package, or thrown it away.
Result<void> PackageWriter::findPackage(const QUuid& brand) {
  const auto present = services_.files.identity(packageURL_);
  if (present) return {};
  if (present.error().kind != ErrorKind::notFound) return tl::unexpected(present.error());
  const auto place =
      services_.findPackage ? services_.findPackage(brand, packageURL_) : packageURL_;
  if (!place) return tl::unexpected(place.error());
  if (*place != packageURL_) {
    lastReport_.place = SaveReport::Place::moved;
    packageURL_ = *place;
    return {};
  }
  lastReport_.place = SaveReport::Place::remade;
  return services_.files.makeFolder(packageURL_);
}

// Another machine's work must not be replaced unseen, so a manifest that can't be kept ends the
// save.
Result<void> PackageWriter::keepPresent() {
  const QString manifest = Package::manifestPath(packageURL_);
  const auto present = services_.files.identity(manifest);
  if (!present) {
    known_.identity.reset();
    const bool isAbsent = present.error().kind == ErrorKind::notFound;
    return isAbsent ? Result<void>() : tl::unexpected(present.error());
  }
  if (*present == known_.identity && !known_.isOfNewerProgram) return {};
  auto kept = keep(manifest, *present);
  // After a failure it is still another's.
  if (kept) known_.identity = *present;
  return kept;
}

// Keeps what the file holds and we don't.
Result<void> PackageWriter::keep(const QString& manifest, const FileIdentity& identity) {
  PackageVersions versions = this->versions();
  const auto file = Package::readJson(services_.files, manifest, packageURL_);
  if (!file) {
    // A link that leads out, or no file, is nobody's work; replacing it is decided by the write.
    const bool isNobodys = file.error().kind == ErrorKind::refused;
    return isNobodys ? Result<void>() : tl::unexpected(file.error());
  }
  const auto foreign = decodeNoting<Brand>(file->bytes);
  if (!foreign) {
    return versions.keepBytes(manifest, services_.clock(), QStringLiteral(".unreadable"));
  }
  const Brand& brand = foreign->record;
  const bool mustKeepBytes = foreign->hasUnknownKeys || (isOfNewerProgram(*foreign) &&
                                                         !versions.hasNewer(brand.schemaVersion));
  if (mustKeepBytes) {
    if (auto kept = versions.keepNewer(manifest, services_.clock()); !kept) return kept;
  }
  // The same content may come back with another identity, as when a folder is synced anew.
  if (asWritten(brand) != asWritten(known_.brand)) {
    if (auto kept = versions.keepSynced(brand, services_.clock()); !kept) return kept;
  }
  known_ = {identity, brand, false};  // kept once, also if the save fails further on
  return {};
}

Result<void> PackageWriter::replaceManifest(const QByteArray& json, const Brand& brand) {
  FileStore& files = services_.files;
  const QString manifest = Package::manifestPath(packageURL_);
  const auto temporary = files.createTemporary(manifest);
  if (!temporary) return tl::unexpected(temporary.error());
  auto replaced =
      (*temporary)->write(json).and_then([&] { return (*temporary)->sync(); }).and_then([&] {
        return files.exchange(**temporary, manifest);
      });
  if (!replaced) return tl::unexpected(replaced.error());
  if (auto settled = settleDisplaced(replaced->displacedPath); !settled) return settled;
  // Of the file that was written: what stands at its path by now may be another's.
  known_ = {(*temporary)->identity(), brand, false};
  return files.syncFolder(packageURL_);
}

// What was displaced is the manifest that was looked at, or one that has come since.
Result<void> PackageWriter::settleDisplaced(const QString& displaced) {
  if (displaced.isEmpty()) return {};
  FileStore& files = services_.files;
  const auto identity = files.identity(displaced);
  const bool isKnown = identity && known_.identity && isSameFile(*identity, *known_.identity);
  if (identity && !isKnown) {
    if (auto kept = keep(displaced, *identity); !kept) {
      (void)files.moveOver(displaced, Package::manifestPath(packageURL_));
      return kept;
    }
  }
  (void)files.remove(displaced);
  return {};
}

Result<void> PackageWriter::moveTo(const QString& packageURL) {
  auto moved = services_.files.moveFolder(packageURL_, packageURL);
  if (moved) packageURL_ = packageURL;
  return moved;
}

// A program that was killed right behind an exchange leaves what it displaced, which may be another
// machine's work.
void PackageWriter::keepLeftBehind() {
  for (const QString& name : services_.files.temporaries(packageURL_)) {
    const auto file =
        Package::readJson(services_.files, packageURL_ + QLatin1Char('/') + name, packageURL_);
    const auto brand =
        file.and_then([](const Package::ReadFile& read) { return decode<Brand>(read.bytes); });
    if (!brand || brand->id != known_.brand.id || isSameContent(*brand, known_.brand)) continue;
    (void)versions().keepSynced(*brand, services_.clock());
  }
}

void PackageWriter::sweep() {
  keepLeftBehind();
  for (const QString& folder :
       {packageURL_, Package::assetsPath(packageURL_), Package::versionsPath(packageURL_)}) {
    services_.files.sweepTemporaries(folder, strayAge);
  }
}

void PackageWriter::snapshot(const VersionEnvelope& envelope) {
  // A package that has gone isn't made again for it.
  if (!isClosed_ && services_.files.isFolder(packageURL_)) (void)versions().write(envelope);
}

void PackageWriter::autoSnapshot(const Brand& brand, Timestamp moment) {
  const QList<BrandVersion> present = versions().list();
  if (present.isEmpty()) {
    snapshot({moment, QStringLiteral("Initial"), brand});
  } else if (moment - present.first().createdAt >= 24h) {
    snapshot({moment, QStringLiteral("Daily"), brand});
  }
}

}  // namespace tarnloft
