#pragma once

#include "library/SearchHit.h"
#include "model/Brand.h"
#include "model/Error.h"

#include <string>
#include <vector>

namespace tarnloft {

// What a search needs of one brand, folded once and packed: all tokens stand in one text, so that a
// query is one walk over it. Smaller than the brand's manifest.
class SearchableBrand {
 public:
  explicit SearchableBrand(const Brand& brand);

  // Of a manifest. Refuses what can't be decoded as a brand. Any thread.
  static Result<SearchableBrand> read(const QByteArray& json);

  // Appends the brand's hits in stored order, a section's own before those of its items; an item
  // gives at most one. The query must be folded, in UTF-8 and not empty.
  void appendHits(const QString& packageURL, const std::string& foldedQuery,
                  QList<SearchHit>& hits) const;

  // Whether each entry contains the query, which is as above: each section in stored order, and
  // behind it each of its items.
  std::vector<bool> matches(const std::string& foldedQuery) const;

  // Bytes held, without the allocator's own.
  qsizetype memory() const;

 private:
  class Filler;
  struct SectionRow {
    QUuid id;
    QString name;
  };
  // A section or an item, and where its tokens begin in `folded_`.
  struct Entry {
    quint32 tokensAt;
    quint32 titleAt;  // in `titles_`, up to that of the next entry; empty for a section
    quint32 section;
    quint8 type;  // 0 for a section, 1 and on for the kinds of payload
    QUuid item;   // null for a section
  };

  SearchableBrand() = default;

  // Calls `found` for each entry that contains the query.
  template <class Found>
  void walk(const std::string& foldedQuery, Found found) const;
  SearchHit hit(const Entry& entry, const QString& packageURL) const;
  QString title(const Entry& entry) const;

  QString brandName_;
  std::optional<Emblem> brandEmblem_;
  std::string folded_;  // UTF-8, each token with a separator behind it
  std::string titles_;  // UTF-8, one behind the other
  std::vector<SectionRow> sections_;
  std::vector<Entry> entries_;
};

}  // namespace tarnloft
