#pragma once

#include "model/ItemPayload.h"
#include "model/UsageNote.h"

#include <QStringList>

namespace tarnloft {

// One tile.
struct Item {
  QUuid id;  // unique within a brand
  ItemPayload payload;
  std::optional<ImageBackground> imageBackground;  // backdrop of an image tile
  std::optional<QList<UsageNote>> notes;           // none, never empty, when set by setUsageNotes

  bool operator==(const Item&) const = default;

  // An item of that content with a new id and nothing else.
  static Item create(ItemPayload payload);

  // The name shown on the tile.
  QString displayName() const;
  // The kind's word, such as "Color".
  QString typeLabel() const;
  // The file that a drag or an export hands out.
  std::optional<AssetRef> exportableAsset() const;
  bool isExportable() const { return exportableAsset().has_value(); }

  // What a search looks at, most telling first.
  QStringList searchTokens() const;
  // True if a token contains the query, whatever its case. The empty query matches nothing.
  bool matchesSearch(const QString& query) const;

  QList<UsageNote> usageNotes() const { return notes.value_or(QList<UsageNote>()); }
  void setUsageNotes(const QList<UsageNote>& value);
};

}  // namespace tarnloft
