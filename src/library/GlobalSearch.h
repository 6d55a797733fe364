#pragma once

#include "library/BrandSummary.h"
#include "library/SearchHits.h"
#include "platform/FileStore.h"

#include <atomic>
#include <mutex>
#include <unordered_map>
#include <utility>

namespace tarnloft {

using BrandAtURL = std::pair<QString, Brand>;

// The hits of brands in memory, in order: brand, section, item. White space around the query is
// dropped; an empty one finds nothing. Pure.
QList<SearchHit> searchHits(const QList<BrandAtURL>& brands, const QString& query);

// Searches packages on disk as if each query read every manifest anew, but reads only those that
// have changed since the last one: by the file's identity, size and times. Any thread.
class GlobalSearch {
 public:
  explicit GlobalSearch(const FileStore& files) : files_(files) {}

  // `open` is the brand of the row at `openURL`, searched as it is in memory; null for none. A
  // package that can't be read is left out.
  SearchHits hits(const QList<BrandSummary>& rows, const QString& openURL, const Brand* open,
                  const QString& query);

  // For queries that each make those before them needless: a query's number, and whether it is the
  // newest.
  quint64 begin() { return ++newest_; }
  bool isNewest(quint64 query) const { return newest_ == query; }

  // Bytes held for later queries.
  qsizetype memory() const;

 private:
  struct Kept {
    std::optional<FileIdentity> identity;
    std::shared_ptr<const SearchableBrand> brand;  // null for a manifest that can't be read
  };
  struct KeptOpen {
    Brand brand;
    std::shared_ptr<const SearchableBrand> searchable;
  };

  void update(const QString& packageURL, Kept& kept) const;
  std::shared_ptr<const SearchableBrand> ofOpen(const Brand& brand);
  void forgetAllBut(const QList<BrandSummary>& rows);

  const FileStore& files_;
  std::atomic<quint64> newest_ = 0;
  mutable std::mutex mutex_;                // of all that follows
  std::unordered_map<QString, Kept> kept_;  // by package
  std::optional<KeptOpen> open_;
};

}  // namespace tarnloft
