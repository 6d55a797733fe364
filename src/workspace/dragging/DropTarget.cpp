#include "workspace/dragging/DropTarget.h"

#include "assets/ItemDrag.h"
#include "workspace/BrandWorkspace.h"

#include <algorithm>

namespace tarnloft {

bool DropTarget::takes(const QMimeData& data) const {
  if (!section_) return false;
  const BrandWorkspace& workspace = *section_->workspace();
  if (tile_) return workspace.offers(data, ItemDrag::type);
  const QStringList types{ItemDrag::type, DropType::fileURL, DropType::image};
  return std::any_of(types.begin(), types.end(),
                     [&](const QString& type) { return workspace.offers(data, type); });
}

bool DropTarget::take(const QMimeData& data) {
  BrandWorkspace& workspace = *section_->workspace();
  return tile_ ? workspace.dropBefore(data, section_->id(), tile_->item().id)
               : workspace.drop(data, section_->id());
}

}  // namespace tarnloft
