#pragma once

#include "library/BrandSummary.h"
#include "platform/FileStore.h"

#include <QMutex>
#include <QSet>

namespace tarnloft {

// Where a library's packages stand, as it was seen last: tells a package that was renamed from one
// that is gone, and a library from the bare mount point that a disk leaves behind. Any thread.
class PackagePlaces {
 public:
  explicit PackagePlaces(const FileStore& files) : files_(files) {}

  // What was seen in the library's folder.
  void see(const QString& folder, const FileIdentity& identity, const QList<BrandSummary>& rows);

  // Refuses if the folder isn't the one that was seen.
  Result<void> checkFolder() const;

  // Where the package of the brand that stood at `lost` stands by now: in its library under another
  // name, else where it was. Fails if the library isn't there.
  Result<QString> placeOf(const QUuid& brand, const QString& lost) const;

 private:
  struct Seen {
    QString folder;
    std::optional<FileIdentity> identity;
    QSet<QString> packages;
  };
  Seen seen() const;
  Result<void> check(const Seen& seen) const;

  const FileStore& files_;
  mutable QMutex mutex_;
  Seen seen_;  // under the mutex
};

// The same folder, whatever has changed in it.
bool isSameFolder(const FileIdentity& a, const FileIdentity& b);

}  // namespace tarnloft
