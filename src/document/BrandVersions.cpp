#include "document/AtomicWrite.h"
#include "document/BrandDocument.h"
#include "document/Package.h"
#include "model/JsonCoding.h"

#include <algorithm>
#include <chrono>

namespace tarnloft {

TARNLOFT_CODED(VersionEnvelope)

namespace {

constexpr qsizetype keptVersions = 30;

// A free name for a file of the moment: its milliseconds, then "-1", "-2" and so on behind them.
QString freeVersionPath(const FileStore& files, const QString& packageURL, Timestamp moment,
                        const QString& extension) {
  const QString base = Package::versionsPath(packageURL) + QLatin1Char('/') +
                       QString::number(moment.time_since_epoch().count());
  QString path = base + extension;
  for (int counter = 1; files.exists(path); ++counter) {
    path = base + QLatin1Char('-') + QString::number(counter) + extension;
  }
  return path;
}

// As it reads back from a file, which keeps whole seconds.
Brand asWritten(Brand brand) {
  using std::chrono::seconds;
  brand.createdAt = std::chrono::floor<seconds>(brand.createdAt);
  brand.updatedAt = std::chrono::floor<seconds>(brand.updatedAt);
  return brand;
}

}  // namespace

void BrandDocument::snapshotVersion(const std::optional<QString>& label) {
  if (invalidated_) return;
  (void)writeVersion({services_.clock(), label, brand_});
  pruneVersions(keptVersions);
}

Result<void> BrandDocument::writeVersion(const VersionEnvelope& envelope) {
  const auto json = encode(envelope);
  if (!json) return tl::unexpected(json.error());
  const QString folder = Package::versionsPath(packageURL_);
  if (auto made = Package::makeFolder(services_.files, folder, packageURL_); !made) return made;
  const QString path =
      freeVersionPath(services_.files, packageURL_, envelope.createdAt, QStringLiteral(".json"));
  return writeAtomically(services_.files, path, Durability::synced,
                         [&](FileWriter& file) { return file.write(*json); });
}

Result<VersionEnvelope> BrandDocument::readVersion(const QString& path) const {
  return Package::readJson(services_.files, path, packageURL_)
      .and_then([](const Package::ReadFile& file) { return decode<VersionEnvelope>(file.bytes); });
}

QList<BrandVersion> BrandDocument::listVersions() const {
  const QString folder = Package::versionsPath(packageURL_);
  QStringList names = services_.files.list(folder).value_or(QStringList());
  // Names tell milliseconds, files whole seconds: of one second the later name comes first.
  std::reverse(names.begin(), names.end());
  QList<BrandVersion> versions;
  for (const QString& name : std::as_const(names)) {
    if (!name.endsWith(QLatin1String(".json"))) continue;
    const QString path = folder + QLatin1Char('/') + name;
    if (const auto envelope = readVersion(path)) {
      versions << BrandVersion{path, envelope->createdAt, envelope->label};
    }
  }
  std::stable_sort(
      versions.begin(), versions.end(),
      [](const BrandVersion& a, const BrandVersion& b) { return a.createdAt > b.createdAt; });
  return versions;
}

void BrandDocument::restoreVersion(const BrandVersion& version, UndoManager* undoManager) {
  const auto envelope = readVersion(version.url);
  if (!envelope) return;
  mutate(QStringLiteral("Restore Version"), undoManager,
         [&](Brand& brand) { brand = envelope->brand; });
}

void BrandDocument::deleteVersion(const BrandVersion& version) {
  if (!services_.files.standsInside(Package::versionsPath(packageURL_), packageURL_)) return;
  (void)services_.files.remove(version.url);
}

void BrandDocument::pruneVersions(qsizetype max) {
  const QList<BrandVersion> versions = listVersions();
  for (qsizetype i = max; i < versions.size(); ++i) deleteVersion(versions.at(i));
}

void BrandDocument::maybeAutoSnapshot() {
  const QList<BrandVersion> versions = listVersions();
  if (versions.isEmpty()) {
    snapshotVersion(QStringLiteral("Initial"));
  } else if (services_.clock() - versions.first().createdAt >= std::chrono::hours(24)) {
    snapshotVersion(QStringLiteral("Daily"));
  }
}

// Another machine's work must not be replaced unseen, so a manifest that can't be kept ends the
// save.
Result<void> BrandDocument::keepForeignManifest() {
  const QString manifest = Package::manifestPath(packageURL_);
  const auto present = services_.files.identity(manifest);
  if (!present || *present == known_.identity) return {};
  const auto file = Package::readJson(services_.files, manifest, packageURL_);
  const auto foreign = file ? decode<Brand>(file->bytes) : tl::unexpected(file.error());
  if (foreign) {
    // The same content may come back with another identity, as when a folder is synced anew.
    if (asWritten(*foreign) == asWritten(known_.brand)) return {};
    auto kept = writeVersion({services_.clock(), QStringLiteral("Synced copy"), *foreign});
    if (!kept) return kept;
    known_ = {file->identity, *foreign};  // kept once, also if the save fails further on
    pruneVersions(keptVersions);
    return {};
  }
  // A link that leads out, or a folder, is nobody's work; replacing it is decided by the write.
  if (!file) return {};
  const QString folder = Package::versionsPath(packageURL_);
  if (auto made = Package::makeFolder(services_.files, folder, packageURL_); !made) return made;
  const QString copy = freeVersionPath(services_.files, packageURL_, services_.clock(),
                                       QStringLiteral(".unreadable"));
  auto kept = services_.files.copyFile(manifest, copy);
  if (kept) known_.identity = file->identity;
  return kept;
}

}  // namespace tarnloft
