#pragma once

#include "library/SearchHit.h"
#include "model/Brand.h"

#include <vector>

namespace tarnloft {

// What a search needs of one brand, folded once and packed: all tokens stand in one text, so that a
// query is one walk over it. Smaller than the brand's manifest.
class SearchableBrand {
 public:
  explicit SearchableBrand(const Brand& brand);

  // Appends the brand's hits in stored order, a section's own before those of its items; an item
  // gives at most one. The query must be folded, in UTF-8 and not empty.
  void appendHits(const QString& packageURL, const QByteArray& foldedQuery,
                  QList<SearchHit>& hits) const;

  // Bytes held, without the allocator's own.
  qsizetype memory() const;

 private:
  struct SectionRow {
    QUuid id;
    QString name;
  };
  // A section or an item, and where its tokens begin in `folded_`.
  struct Entry {
    quint32 tokensAt;
    quint32 section;
    quint32 titleAt;  // in `titles_`; unused for a section
    quint32 titleLength;
    quint8 type;  // in `typeLabels`; 0 for a section
    QUuid item;   // null for a section
  };

  void addSection(const Section& section);
  void addItem(const Item& item);
  void addToken(const QString& token);
  SearchHit hit(const Entry& entry, const QString& packageURL) const;

  QString brandName_;
  std::optional<Emblem> brandEmblem_;
  QByteArray folded_;  // UTF-8, each token with a separator behind it
  QByteArray titles_;  // UTF-8, one behind the other
  std::vector<SectionRow> sections_;
  std::vector<Entry> entries_;
};

}  // namespace tarnloft
