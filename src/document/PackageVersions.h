#pragma once

#include "document/VersionEnvelope.h"
#include "platform/FileStore.h"

namespace tarnloft {

// A row of the version list.
struct BrandVersion {
  QString url;  // the version file's path, the row's identity
  Timestamp createdAt;
  std::optional<QString> label;

  bool operator==(const BrandVersion&) const = default;
};

// The `versions` folder of a package: snapshots of its brand, and the manifests of others that a
// save replaced. Each call waits for the disk; any thread, one at a time for a package.
class PackageVersions {
 public:
  PackageVersions(FileStore& files, const QString& packageURL)
      : files_(files), packageURL_(packageURL) {}

  // The label of what another machine had saved.
  static const QString syncedLabel;

  // Newest first. A file that doesn't read is left alone and left out.
  QList<BrandVersion> list() const;
  Result<VersionEnvelope> read(const QString& path) const;

  // Keeps a version; of synced copies the 30 newest stay, and of the others, and this one always.
  Result<void> write(const VersionEnvelope& envelope);
  void remove(const BrandVersion& version);

  // Keeps another machine's brand as a synced copy, unless a version of that content is there.
  Result<void> keepSynced(const Brand& brand, Timestamp moment);

  // Copies a manifest as it stands, under a name of that extension, which the list leaves out.
  Result<void> keepBytes(const QString& manifest, Timestamp moment, const QString& extension);
  // Of a program that knew more than this one.
  Result<void> keepNewer(const QString& manifest, Timestamp moment);
  // True if a manifest of that schema has been kept by `keepNewer`.
  bool hasNewer(qint64 schemaVersion) const;

 private:
  QString folder() const;
  Result<void> makeFolder();
  bool holds(const Brand& brand) const;
  QStringList paths() const;
  void prune(const BrandVersion& justKept);

  FileStore& files_;
  QString packageURL_;
};

// As it reads back from a file, which keeps whole seconds.
Brand asWritten(Brand brand);

// True if the two differ in nothing but their times of saving.
bool isSameContent(Brand a, const Brand& b);

}  // namespace tarnloft
