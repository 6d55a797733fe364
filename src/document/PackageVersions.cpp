#include "document/PackageVersions.h"

#include "document/AtomicWrite.h"
#include "document/Package.h"
#include "model/FileName.h"
#include "model/JsonCoding.h"
#include "model/RecordView.h"

#include <algorithm>
#include <chrono>

namespace tarnloft {

TARNLOFT_CODED(VersionEnvelope)

namespace {

constexpr qsizetype keptVersions = 30;  // of each kind
const QString newerExtension = QStringLiteral(".newer");

// A free name for a file of the moment: its milliseconds, then "-1", "-2" and so on behind them.
QString freePath(const FileStore& files, const QString& folder, Timestamp moment,
                 const QString& extension) {
  const QString base =
      folder + QLatin1Char('/') + QString::number(moment.time_since_epoch().count());
  QString path = base + extension;
  for (int counter = 1; files.exists(path); ++counter) {
    path = base + QLatin1Char('-') + QString::number(counter) + extension;
  }
  return path;
}

// What such a name tells of the order; names of others come first.
std::pair<qint64, qint64> momentOf(const QString& path) {
  const QString name = withoutPathExtension(lastPathComponent(path));
  const qsizetype dash = name.indexOf(QLatin1Char('-'));
  return {QStringView(name).left(dash < 0 ? name.size() : dash).toLongLong(),
          dash < 0 ? 0 : QStringView(name).mid(dash + 1).toLongLong()};
}

// Files tell whole seconds, names milliseconds.
bool isNewer(const BrandVersion& a, const BrandVersion& b) {
  if (a.createdAt != b.createdAt) return a.createdAt > b.createdAt;
  return momentOf(a.url) > momentOf(b.url);
}

}  // namespace

const QString PackageVersions::syncedLabel = QStringLiteral("Synced copy");

Brand asWritten(Brand brand) {
  using std::chrono::seconds;
  brand.createdAt = std::chrono::floor<seconds>(brand.createdAt);
  brand.updatedAt = std::chrono::floor<seconds>(brand.updatedAt);
  return brand;
}

// Saves alone set that date.
bool isSameContent(Brand a, const Brand& b) {
  a.updatedAt = b.updatedAt;
  return asWritten(std::move(a)) == asWritten(b);
}

QString PackageVersions::folder() const { return Package::versionsPath(packageURL_); }

Result<void> PackageVersions::makeFolder() {
  return Package::makeFolder(files_, folder(), packageURL_);
}

QStringList PackageVersions::paths() const {
  QStringList paths;
  for (const QString& name : files_.list(folder()).value_or(QStringList())) {
    if (name.endsWith(QLatin1String(".json"))) paths << folder() + QLatin1Char('/') + name;
  }
  return paths;
}

// Checked as a whole, but only what a row needs is taken out.
QList<BrandVersion> PackageVersions::list() const {
  QList<BrandVersion> versions;
  for (const QString& path : paths()) {
    const auto file = Package::readJson(files_, path, packageURL_);
    if (!file) continue;
    const auto envelope = RecordView<VersionEnvelope>::parse(file->bytes);
    if (!envelope) continue;
    versions << BrandVersion{path, valueOf<&VersionEnvelope::createdAt>(*envelope),
                             valueOf<&VersionEnvelope::label>(*envelope)};
  }
  std::sort(versions.begin(), versions.end(), isNewer);
  return versions;
}

Result<VersionEnvelope> PackageVersions::read(const QString& path) const {
  return Package::readJson(files_, path, packageURL_).and_then([](const Package::ReadFile& file) {
    return decode<VersionEnvelope>(file.bytes);
  });
}

Result<void> PackageVersions::write(const VersionEnvelope& envelope) {
  const auto json = encode(envelope).and_then(Package::checkedSize);
  if (!json) return tl::unexpected(json.error());
  if (auto made = makeFolder(); !made) return made;
  const QString path = freePath(files_, folder(), envelope.createdAt, QStringLiteral(".json"));
  auto written = writeAtomically(files_, path, Durability::synced,
                                 [&](FileWriter& file) { return file.write(*json); });
  if (written) prune({path, envelope.createdAt, envelope.label});
  return written;
}

void PackageVersions::remove(const BrandVersion& version) {
  if (!files_.standsInside(folder(), packageURL_)) return;
  (void)files_.remove(version.url);
}

// A user's own snapshots must not go because another machine saves often, nor what was just kept
// because others' clocks are ahead.
void PackageVersions::prune(const BrandVersion& justKept) {
  const auto isSynced = [](const BrandVersion& version) { return version.label == syncedLabel; };
  qsizetype synced = isSynced(justKept) ? 1 : 0, own = 1 - synced;
  for (const BrandVersion& version : list()) {
    if (version.url == justKept.url) continue;
    if (++(isSynced(version) ? synced : own) > keptVersions) remove(version);
  }
}

Result<void> PackageVersions::keepSynced(const Brand& brand, Timestamp moment) {
  if (holds(brand)) return {};
  return write({moment, syncedLabel, brand});
}

bool PackageVersions::holds(const Brand& brand) const {
  const QStringList candidates = paths();
  return std::any_of(candidates.begin(), candidates.end(), [&](const QString& path) {
    const auto envelope = read(path);
    return envelope && isSameContent(envelope->brand, brand);
  });
}

Result<void> PackageVersions::keepBytes(const QString& manifest, Timestamp moment,
                                        const QString& extension) {
  if (auto made = makeFolder(); !made) return made;
  const auto folder = files_.openFolder(this->folder(), packageURL_);
  if (!folder) return tl::unexpected(folder.error());
  const QString path = freePath(files_, this->folder(), moment, extension);
  Progress progress;
  return (*folder)->copyIn(manifest, lastPathComponent(path), progress);
}

Result<void> PackageVersions::keepNewer(const QString& manifest, Timestamp moment) {
  return keepBytes(manifest, moment, newerExtension);
}

bool PackageVersions::hasNewer(qint64 schemaVersion) const {
  const QStringList names = files_.list(folder()).value_or(QStringList());
  return std::any_of(names.begin(), names.end(), [&](const QString& name) {
    if (!name.endsWith(newerExtension)) return false;
    const auto file = Package::readJson(files_, folder() + QLatin1Char('/') + name, packageURL_);
    const auto brand =
        file.and_then([](const Package::ReadFile& read) { return decode<Brand>(read.bytes); });
    return brand && brand->schemaVersion == schemaVersion;
  });
}

}  // namespace tarnloft
