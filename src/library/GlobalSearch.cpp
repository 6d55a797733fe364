#include "library/GlobalSearch.h"

#include "document/Package.h"
#include "model/Json.h"
#include "model/SearchText.h"

#include <QSet>

namespace tarnloft {

namespace {

QByteArray foldedQuery(const QString& query) { return foldedForSearch(query.trimmed()).toUtf8(); }

}  // namespace

QList<SearchHit> searchHits(const QList<BrandAtURL>& brands, const QString& query) {
  const QByteArray folded = foldedQuery(query);
  QList<SearchHit> hits;
  if (folded.isEmpty()) return hits;
  for (const auto& [packageURL, brand] : brands) {
    SearchableBrand(brand).appendHits(packageURL, folded, hits);
  }
  return hits;
}

QList<SearchHit> GlobalSearch::hits(const QList<BrandSummary>& rows, const QString& openURL,
                                    const Brand* open, const QString& query) {
  const QByteArray folded = foldedQuery(query);
  QList<SearchHit> hits;
  if (folded.isEmpty()) return hits;
  for (const BrandSummary& row : rows) {
    const bool isOpen = open && row.packageURL == openURL;
    const SearchableBrand* brand = isOpen ? inMemory(*open) : onDisk(row.packageURL);
    if (brand) brand->appendHits(row.packageURL, folded, hits);
  }
  if (kept_.size() > rows.size()) forgetAllBut(rows);
  return hits;
}

const SearchableBrand* GlobalSearch::onDisk(const QString& packageURL) {
  const QString manifest = Package::manifestPath(packageURL);
  Kept& kept = kept_[packageURL];
  const auto present = files_.identity(manifest);
  if (!present || present != kept.identity) {
    const auto file = Package::readJson(files_, manifest, packageURL);
    const auto brand = file ? decode<Brand>(file->bytes) : tl::unexpected(file.error());
    kept.identity = file ? std::optional(file->identity) : std::nullopt;
    kept.brand = brand ? std::optional<SearchableBrand>(*brand) : std::nullopt;
  }
  return kept.brand ? &*kept.brand : nullptr;
}

const SearchableBrand* GlobalSearch::inMemory(const Brand& brand) {
  // Comparing with a copy that shares its storage costs next to nothing.
  if (!open_ || !(open_->brand == brand)) open_.emplace(KeptOpen{brand, SearchableBrand(brand)});
  return &open_->searchable;
}

void GlobalSearch::forgetAllBut(const QList<BrandSummary>& rows) {
  QSet<QString> present;
  for (const BrandSummary& row : rows) present.insert(row.packageURL);
  erase_if(kept_, [&](const auto& entry) { return !present.contains(entry.key()); });
}

qsizetype GlobalSearch::memory() const {
  qsizetype bytes = 0;
  for (const Kept& kept : kept_) bytes += kept.brand ? kept.brand->memory() : 0;
  return open_ ? bytes + open_->searchable.memory() : bytes;
}

}  // namespace tarnloft
