#include "model/Brand.h"

namespace tarnloft {

std::optional<Brand::ItemPlace> Brand::placeOf(const QUuid& item) const {
  for (qsizetype section = 0; section < sections.size(); ++section) {
    const qsizetype index = indexOf(sections.at(section).items, item);
    if (index >= 0) return ItemPlace{section, index};
  }
  return std::nullopt;
}

Brand Brand::create(const QString& name, const Clock& clock) {
  Brand brand;
  brand.id = QUuid::createUuid();
  brand.name = name;
  brand.createdAt = clock();
  brand.updatedAt = clock();
  brand.sections = {Section::create(QStringLiteral("Colors")),
                    Section::create(QStringLiteral("Logos"))};
  return brand;
}

}  // namespace tarnloft
