#include "library/PackagePlaces.h"

#include "document/Package.h"
#include "library/LibraryListing.h"

namespace tarnloft {

bool isSameFolder(const FileIdentity& a, const FileIdentity& b) {
  return a.device == b.device && a.inode == b.inode;
}

void PackagePlaces::see(const QString& folder, const FileIdentity& identity,
                        const QList<BrandSummary>& rows) {
  Seen seen{folder, identity, {}};
  for (const BrandSummary& row : rows) seen.packages.insert(row.packageURL);
  const QMutexLocker lock(&mutex_);
  seen_ = std::move(seen);
}

PackagePlaces::Seen PackagePlaces::seen() const {
  const QMutexLocker lock(&mutex_);
  return seen_;
}

Result<void> PackagePlaces::checkFolder() const { return check(seen()); }

Result<void> PackagePlaces::check(const Seen& seen) const {
  if (!seen.identity) return {};
  const auto present = files_.identity(seen.folder);
  if (present && isSameFolder(*present, *seen.identity)) return {};
  return failure(ErrorKind::notFound, QStringLiteral("The library's folder isn't there"));
}

Result<QString> PackagePlaces::placeOf(const QUuid& brand, const QString& lost) const {
  const Seen seen = this->seen();
  if (Package::folderOf(lost) != seen.folder) return lost;
  if (auto there = check(seen); !there) return tl::unexpected(there.error());
  const LibraryListing::Listing listing = LibraryListing::read(files_, seen.folder);
  for (const BrandSummary& row : listing.rows) {
    // One that was there before is another brand, be it a copy with the same id.
    if (seen.packages.contains(row.packageURL)) continue;
    if (LibraryListing::holds(row, listing.twins, brand)) return row.packageURL;
  }
  return lost;
}

}  // namespace tarnloft
