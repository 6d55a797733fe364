#include "model/LogoValue.h"

#include "model/FileName.h"
#include "model/Item.h"

#include <algorithm>

namespace tarnloft {

QString label(LogoRole role) {
  switch (role) {
    case LogoRole::primary: return QStringLiteral("Primary");
    case LogoRole::secondary: return QStringLiteral("Secondary");
    case LogoRole::mono: return QStringLiteral("Monochrome");
    case LogoRole::reversed: return QStringLiteral("Reversed");
    case LogoRole::horizontal: return QStringLiteral("Horizontal");
    case LogoRole::stacked: return QStringLiteral("Stacked");
    case LogoRole::icon: return QStringLiteral("Icon / Favicon");
    case LogoRole::wordmark: return QStringLiteral("Wordmark");
    case LogoRole::emblem: return QStringLiteral("Emblem");
  }
  Q_UNREACHABLE();
}

std::optional<LogoVariant> LogoValue::primary() const {
  const auto found = std::find_if(variants.begin(), variants.end(), [](const LogoVariant& variant) {
    return variant.role == LogoRole::primary;
  });
  if (found != variants.end()) return *found;
  return variants.isEmpty() ? std::nullopt : std::optional(variants.first());
}

QList<Item> LogoValue::ungroupedImageItems() const {
  QList<Item> items;
  for (const LogoVariant& variant : variants) {
    QString itemName = withoutPathExtension(variant.asset.originalName);
    if (variants.size() > 1) itemName += QStringLiteral(" · ") + label(variant.role);
    Item item = Item::create(ImagePayload{variant.asset, itemName});
    item.imageBackground = variant.background;
    items << item;
  }
  return items;
}

}  // namespace tarnloft
