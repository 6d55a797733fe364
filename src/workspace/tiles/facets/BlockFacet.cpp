#include "workspace/tiles/facets/BlockFacet.h"

#include "workspace/BrandWorkspace.h"

#include <algorithm>

namespace tarnloft {
namespace {

void writeText(Item& item, const QString& text) {
  if (auto* header = std::get_if<HeaderPayload>(&item.payload)) header->text = text;
  if (auto* block = std::get_if<TextPayload>(&item.payload)) block->body = text;
}

}  // namespace

QString BlockFacet::text() const { return item().displayName(); }

int BlockFacet::level() const {
  const auto* header = std::get_if<HeaderPayload>(&item().payload);
  return header ? int(std::clamp<qint64>(header->level, 0, 9)) : 0;
}

void BlockFacet::setText(const QString& text) {
  BrandDocument* const document = workspace().document();
  if (!document || text == this->text()) return;
  document->updateItem(item().id, [&](Item& item) { writeText(item, text); });
}

void BlockFacet::remove() {
  if (BrandDocument* const document = workspace().document()) document->removeItem(item().id);
}

}  // namespace tarnloft
