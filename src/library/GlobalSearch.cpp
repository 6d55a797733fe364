#include "library/GlobalSearch.h"

#include "document/Package.h"
#include "library/InParallel.h"
#include "model/SearchText.h"

#include <QSet>

namespace tarnloft {

namespace {

std::string foldedQuery(const QString& query) {
  std::string folded;
  SearchFolding().append(query.trimmed(), folded);
  return folded;
}

}  // namespace

QList<SearchHit> searchHits(const QList<BrandAtURL>& brands, const QString& query) {
  const std::string folded = foldedQuery(query);
  SearchHits hits;
  if (folded.empty()) return {};
  for (const auto& [packageURL, brand] : brands) {
    const auto searchable = std::make_shared<const SearchableBrand>(brand);
    hits.append({packageURL, searchable, searchable->matches(folded)});
  }
  return hits.toList();
}

SearchHits GlobalSearch::hits(const QList<BrandSummary>& rows, const QString& openURL,
                              const Brand* open, const QString& query) {
  const std::string folded = foldedQuery(query);
  SearchHits hits;
  if (folded.empty()) return hits;
  const std::lock_guard lock(mutex_);
  std::vector<Kept*> kept;  // null for the open brand; an entry stays where it is
  std::shared_ptr<const SearchableBrand> inMemory;
  for (const BrandSummary& row : rows) {
    const bool isOpen = open && row.packageURL == openURL;
    if (isOpen) inMemory = ofOpen(*open);
    kept.push_back(isOpen ? nullptr : &kept_[row.packageURL]);
  }
  std::vector<SearchHits::Group> found(kept.size());
  inParallel(rows.size(), [&](qsizetype i) {
    SearchHits::Group& group = found[size_t(i)];
    Kept* const file = kept[size_t(i)];
    group.brandURL = rows.at(i).packageURL;
    if (file) update(group.brandURL, *file);
    group.brand = file ? file->brand : inMemory;
    if (group.brand) group.numbers = group.brand->matches(folded);
  });
  for (SearchHits::Group& group : found) hits.append(std::move(group));
  if (kept_.size() > size_t(rows.size())) forgetAllBut(rows);
  return hits;
}

void GlobalSearch::update(const QString& packageURL, Kept& kept) const {
  const QString manifest = Package::manifestPath(packageURL);
  const auto present = files_.identity(manifest);
  if (present && *present == kept.identity) return;
  const auto file = Package::readJson(files_, manifest, packageURL);
  auto brand = file ? SearchableBrand::read(file->bytes) : tl::unexpected(file.error());
  kept.identity = file ? std::optional(file->identity) : std::nullopt;
  kept.brand = brand ? std::make_shared<const SearchableBrand>(std::move(*brand)) : nullptr;
}

std::shared_ptr<const SearchableBrand> GlobalSearch::ofOpen(const Brand& brand) {
  // Comparing with a copy that shares its storage costs next to nothing.
  if (!open_ || !(open_->brand == brand))
    open_.emplace(KeptOpen{brand, std::make_shared<const SearchableBrand>(brand)});
  return open_->searchable;
}

void GlobalSearch::forgetAllBut(const QList<BrandSummary>& rows) {
  QSet<QString> present;
  for (const BrandSummary& row : rows) present.insert(row.packageURL);
  std::erase_if(kept_, [&](const auto& entry) { return !present.contains(entry.first); });
}

qsizetype GlobalSearch::memory() const {
  const std::lock_guard lock(mutex_);
  qsizetype bytes = 0;
  for (const auto& [packageURL, kept] : kept_) bytes += kept.brand ? kept.brand->memory() : 0;
  return open_ ? bytes + open_->searchable->memory() : bytes;
}

}  // namespace tarnloft
