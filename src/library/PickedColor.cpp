#include "library/PickedColor.h"

#include <QStringList>

#include <algorithm>

namespace tarnloft {
namespace {

bool isNamedForColors(const Section& section) {
  static const QStringList names{QStringLiteral("color"), QStringLiteral("colors"),
                                 QStringLiteral("colour"), QStringLiteral("colours"),
                                 QStringLiteral("palette")};
  return names.contains(section.name.toLower());
}

bool holdsAColor(const Section& section) {
  return std::any_of(section.items.begin(), section.items.end(), [](const Item& item) {
    return std::holds_alternative<ColorPayload>(item.payload);
  });
}

template <class Test>
qsizetype firstSection(const Brand& brand, Test&& test) {
  const auto found = std::find_if(brand.sections.begin(), brand.sections.end(), test);
  return found == brand.sections.end() ? -1 : found - brand.sections.begin();
}

qsizetype targetIndex(Brand& brand, const std::optional<QUuid>& preferred) {
  qsizetype index = preferred ? indexOf(brand.sections, *preferred) : -1;
  if (index < 0) index = firstSection(brand, isNamedForColors);
  if (index < 0) index = firstSection(brand, holdsAColor);
  if (index >= 0) return index;
  brand.sections.append(Section::create(QStringLiteral("Colors")));
  return brand.sections.size() - 1;
}

}  // namespace

QUuid PickedColor::add(Brand& brand, const QString& hex,
                       const std::optional<QUuid>& preferredSection) {
  Section& section = brand.sections[targetIndex(brand, preferredSection)];
  section.items.append(Item::create(ColorPayload{{hex, std::nullopt, std::nullopt}}));
  return section.id;
}

}  // namespace tarnloft
