#include "workspace/selection/GroupOperations.h"

#include "workspace/tiles/TileFacts.h"

#include <algorithm>

namespace tarnloft {
namespace {

bool isImage(const Item& item) { return std::holds_alternative<ImagePayload>(item.payload); }

QList<QUuid> tilesOf(const Section& section) {
  QList<QUuid> ids;
  for (const Item& item : section.items) {
    if (!TileFacts::isBlock(item)) ids << item.id;
  }
  return ids;
}

// The places of the items that pass, in order.
template <class Test>
QList<qsizetype> places(const SharedList<Item>& items, Test&& test) {
  QList<qsizetype> found;
  qsizetype place = 0;
  for (const Item& item : items) {
    if (test(item)) found << place;
    ++place;
  }
  return found;
}

// Takes out the items at those places, which are in order.
QList<Item> taken(SharedList<Item>& items, const QList<qsizetype>& from) {
  QList<Item> result(from.size());
  for (qsizetype i = from.size() - 1; i >= 0; --i) result[i] = items.takeAt(from.at(i));
  return result;
}

LogoValue logoOf(const QList<Item>& images) {
  const auto& first = std::get<ImagePayload>(images.first().payload);
  LogoValue logo{first.name.value_or(first.asset.originalName), {}};
  for (const Item& image : images) {
    const LogoRole role = logo.variants.isEmpty() ? LogoRole::primary : LogoRole::secondary;
    logo.variants << LogoVariant{QUuid::createUuid(), std::get<ImagePayload>(image.payload).asset,
                                 role, std::nullopt};
  }
  return logo;
}

}  // namespace

const Section* GroupOperations::selectedSection() const {
  const auto& id = selection_.sectionID();
  return id ? find(document_.brand().sections, *id) : nullptr;
}

template <class Test>
qsizetype GroupOperations::count(Test&& test) const {
  const Section* section = selectedSection();
  if (!section) return 0;
  return std::count_if(section->items.begin(), section->items.end(), [&](const Item& item) {
    return selection_.ids().contains(item.id) && test(item);
  });
}

template <class Change>
void GroupOperations::mutate(const QString& actionName, Change&& change) {
  document_.mutate(actionName, undoManager_, [&](Brand& brand) {
    const auto& id = selection_.sectionID();
    const qsizetype index = id ? indexOf(brand.sections, *id) : -1;
    if (index >= 0) change(brand, brand.sections[index]);
  });
  selection_.clear();
}

qsizetype GroupOperations::exportableCount() const {
  return count([](const Item& item) { return item.isExportable(); });
}

qsizetype GroupOperations::selectedImageCount() const { return count(isImage); }

bool GroupOperations::canGroupAsLogo() const {
  const qsizetype selected = count([](const Item&) { return true; });
  return selected >= 2 && selectedImageCount() == selected;
}

QList<AssetRef> GroupOperations::selectedExports() const {
  const Section* section = selectedSection();
  if (!section) return {};
  QList<AssetRef> assets;
  for (const Item& item : section->items) {
    if (!selection_.ids().contains(item.id)) continue;
    if (const auto asset = item.exportableAsset()) assets << *asset;
  }
  return assets;
}

void GroupOperations::selectAllInContext() {
  if (const Section* section = selectedSection()) {
    return selection_.selectAll(tilesOf(*section), section->id);
  }
  for (const Section& section : document_.brand().sections) {
    const QList<QUuid> tiles = tilesOf(section);
    if (!tiles.isEmpty()) return selection_.selectAll(tiles, section.id);
  }
}

std::optional<QString> GroupOperations::bulkDelete() {
  qsizetype deleted = 0;
  mutate(QStringLiteral("Delete"), [&](Brand&, Section& section) {
    const auto selected =
        places(section.items, [&](const Item& item) { return selection_.ids().contains(item.id); });
    deleted = taken(section.items, selected).size();
  });
  if (deleted == 0) return std::nullopt;
  return QStringLiteral("Deleted %1 item%2 · ⌘Z to undo")
      .arg(deleted)
      .arg(deleted == 1 ? QString() : QStringLiteral("s"));
}

void GroupOperations::bulkDuplicate() {
  mutate(QStringLiteral("Duplicate"), [&](Brand&, Section& section) {
    QList<Item> copies;
    for (const Item& item : section.items) {
      if (selection_.ids().contains(item.id)) copies << item;
    }
    for (Item& copy : copies) {
      copy.id = QUuid::createUuid();
      section.items.append(copy);
    }
  });
}

void GroupOperations::bulkMove(const QUuid& target) {
  mutate(QStringLiteral("Move"), [&](Brand& brand, Section& section) {
    const qsizetype receiver = indexOf(brand.sections, target);
    if (receiver < 0) return;
    const auto selected =
        places(section.items, [&](const Item& item) { return selection_.ids().contains(item.id); });
    for (const Item& item : taken(section.items, selected))
      brand.sections[receiver].items.append(item);
  });
}

std::optional<QString> GroupOperations::groupAsLogo() {
  qsizetype grouped = 0;
  mutate(QStringLiteral("Group as Logo"), [&](Brand&, Section& section) {
    const auto images = places(section.items, [&](const Item& item) {
      return isImage(item) && selection_.ids().contains(item.id);
    });
    grouped = images.size();
    if (images.isEmpty()) return;
    const Item logo = Item::create(LogoPayload{logoOf(taken(section.items, images))});
    section.items.insert(std::min(images.first(), section.items.size()), logo);
  });
  if (grouped == 0) return std::nullopt;
  return QStringLiteral("Grouped %1 into a logo · ⌘Z to undo").arg(grouped);
}

}  // namespace tarnloft
