#include "document/ItemBinding.h"

namespace tarnloft {

ItemBinding::ItemBinding(BrandDocument& document, const QUuid& item) : document_(&document) {
  item_.id = item;
  follow();
  connect(&document, &BrandDocument::brandChanged, this, &ItemBinding::follow);
  connect(&document, &QObject::destroyed, this, &ItemBinding::gone);
}

void ItemBinding::update(const std::function<void(Item&)>& change) {
  if (document_) document_->updateItem(item_.id, change);
}

void ItemBinding::follow() {
  const Brand& brand = document_->brand();
  const auto place = brand.placeOf(item_.id);
  if (!place) return emit gone();
  const Item& now = brand.sections.at(place->section).items.at(place->item);
  if (now == item_) return;
  item_ = now;
  emit changed();
}

}  // namespace tarnloft
