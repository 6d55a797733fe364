#include "model/Brand.h"

namespace tarnloft {

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
