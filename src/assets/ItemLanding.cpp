#include "assets/ItemLanding.h"

namespace tarnloft {

ItemLanding::Place ItemLanding::take() {
  slots_.emplace_back();
  return slots_.size() - 1;
}

void ItemLanding::land(Place place, std::optional<Item> item) {
  slots_[place] = {true, std::move(item)};
  QList<Item> ready;
  for (; next_ < slots_.size() && slots_[next_].landed; ++next_) {
    if (auto& landed = slots_[next_].item) ready << *std::exchange(landed, std::nullopt);
  }
  if (ready.isEmpty()) return;
  document_ ? document_->addItems(ready, section_) : addToClosed_(brand_, section_, ready);
}

}  // namespace tarnloft
