#pragma once

#include "model/Emblem.h"

#include <QList>
#include <QUuid>

namespace tarnloft {

// One result of the search across brands: a section by its name, or an item.
struct SearchHit {
  QString brandURL;
  QString brandName;
  std::optional<Emblem> brandEmblem;
  QUuid sectionID;
  QString sectionName;          // "Untitled Section" for an empty name
  std::optional<QUuid> itemID;  // none for a hit on the section itself
  QString title;                // the item's name; of a section hit the section's
  QString typeLabel;            // "Section" for a section hit

  bool operator==(const SearchHit&) const = default;

  bool isSection() const { return !itemID; }
  // "<path>|<section>|<item>", with the word "section" for a section hit.
  QString id() const;
};

}  // namespace tarnloft
