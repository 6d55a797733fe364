#pragma once

#include "model/ById.h"
#include "model/Section.h"
#include "model/Timestamp.h"

namespace tarnloft {

// A brand kit: the root record, what `manifest.json` in a package holds. Copies share storage, so a
// copy for undo costs next to nothing.
struct Brand {
  QUuid id;  // survives renames and restores
  QString name;
  std::optional<Emblem> emblem;
  std::optional<QString> accentHex;      // none means the application's default accent
  std::optional<QString> accentHexDark;  // in dark mode; none means `accentHex`
  Timestamp createdAt;
  Timestamp updatedAt;  // set by every save
  qint64 schemaVersion = 1;
  QList<Section> sections;  // in display order

  bool operator==(const Brand&) const = default;

  // Where an item stands: places in `sections` and in that section's items.
  struct ItemPlace {
    qsizetype section;
    qsizetype item;
  };
  // None if there is no item of that id.
  std::optional<ItemPlace> placeOf(const QUuid& item) const;

  // A fresh brand with the empty sections "Colors" and "Logos". The name is taken as it stands.
  static Brand create(const QString& name, const Clock& clock = systemNow);
};

}  // namespace tarnloft
