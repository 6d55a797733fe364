#include "entry/LogoSeeding.h"

#include <array>

namespace tarnloft {
namespace {

UsageNote note(UsageKind kind, const QString& text) { return {QUuid::createUuid(), kind, text}; }

QList<AssetRef> imagesOf(const Brand& brand) {
  QList<AssetRef> images;
  for (const Section& section : brand.sections) {
    for (const Item& item : section.items) {
      if (const auto* image = std::get_if<ImagePayload>(&item.payload)) images << image->asset;
    }
  }
  return images;
}

LogoVariant variant(const AssetRef& asset, LogoRole role,
                    std::optional<ImageBackground> background = std::nullopt) {
  return {QUuid::createUuid(), asset, role, background};
}

QList<LogoVariant> variantsOf(const QList<AssetRef>& images) {
  const AssetRef& first = images.first();
  if (images.size() == 1) {
    return {variant(first, LogoRole::primary),
            variant(first, LogoRole::mono, ImageBackground::white),
            variant(first, LogoRole::reversed, ImageBackground::dark),
            variant(first, LogoRole::icon, ImageBackground::checkerboard)};
  }
  QList<LogoVariant> variants;
  for (const AssetRef& image : images) {
    variants << variant(image, variants.isEmpty() ? LogoRole::primary : LogoRole::secondary);
  }
  return variants;
}

Item logoItem(const QString& brandName, const QList<AssetRef>& images) {
  Item item = Item::create(LogoPayload{{brandName + QStringLiteral(" Logo"), variantsOf(images)}});
  item.setUsageNotes(
      {note(UsageKind::doRule, QStringLiteral("Keep clear space equal to the icon height.")),
       note(UsageKind::dontRule, QStringLiteral("Don't recolor or stretch the mark.")),
       note(UsageKind::note, QStringLiteral("Use the reversed version on dark backgrounds."))});
  return item;
}

// The other items of that section go, on purpose.
void placeLogo(Brand& brand, const Item& logo) {
  for (Section& section : brand.sections) {
    if (section.items.isEmpty()) continue;
    section.items = {logo};
    return;
  }
  Section section = Section::create(QStringLiteral("Logos"));
  section.items = {logo};
  brand.sections.prepend(section);
}

void seedColor(Item& item, qsizetype number) {
  static const std::array spots{QStringLiteral("PMS 130 C"), QStringLiteral("PMS 476 C"),
                                QStringLiteral("PMS 021 C")};
  std::get<ColorPayload>(item.payload).value.spot = spots[size_t(number) % spots.size()];
  item.setUsageNotes({note(UsageKind::doRule, QStringLiteral("Use for primary brand moments."))});
}

void seedColors(Brand& brand) {
  qsizetype number = 0;
  for (Section& section : brand.sections) {
    for (qsizetype i = 0; i < section.items.size(); ++i) {
      if (std::holds_alternative<ColorPayload>(section.items.at(i).payload)) {
        seedColor(section.items[i], number++);
      }
    }
  }
}

}  // namespace

bool LogoSeeding::seed(BrandDocument& document) {
  const QList<AssetRef> images = imagesOf(document.brand());
  if (images.isEmpty()) return false;
  const Item logo = logoItem(document.brand().name, images);
  document.edit([&](Brand& brand) { placeLogo(brand, logo); });
  document.edit(seedColors);
  document.saveNow();
  return true;
}

}  // namespace tarnloft
