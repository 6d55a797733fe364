#include "document/DistinctIDs.h"

#include <QSet>

#include <utility>

namespace tarnloft {
namespace {

// The id itself if it is new, else one made from it that is.
QUuid distinct(const QUuid& id, QSet<QUuid>& seen) {
  QUuid own = id;
  while (seen.contains(own)) own = QUuid::createUuidV5(own, QStringLiteral("repeated"));
  seen.insert(own);
  return own;
}

}  // namespace

// Writes to what repeats alone, so that all else stays shared.
Brand withDistinctIDs(Brand brand) {
  QSet<QUuid> sections, items;
  for (qsizetype i = 0; i < brand.sections.size(); ++i) {
    const QUuid id = distinct(brand.sections.at(i).id, sections);
    if (id != brand.sections.at(i).id) brand.sections[i].id = id;
    const auto original = std::as_const(brand).sections.at(i).items;
    for (qsizetype j = 0; j < original.size(); ++j) {
      const QUuid itemID = distinct(original.at(j).id, items);
      if (itemID != original.at(j).id) brand.sections[i].items[j].id = itemID;
    }
  }
  return brand;
}

}  // namespace tarnloft
