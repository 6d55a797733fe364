#include "document/BrandDocument.h"
#include "document/BrandMerge.h"

#include <QPointer>

#include <algorithm>

namespace tarnloft {
namespace {

// Where to insert in front of `before`: the end if there is no such element.
template <class List>
qsizetype insertionIndex(const List& list, const std::optional<QUuid>& before) {
  const qsizetype index = before ? indexOf(list, *before) : -1;
  return index < 0 ? list.size() : index;
}

// Registers the taking back of what made `before` to `after`, which registers its inverse in turn.
void registerStep(BrandDocument& edited, const Brand& before, const Brand& after,
                  UndoManager& undoManager, const QString& actionName) {
  undoManager.registerUndo([document = QPointer(&edited), before, after, &undoManager, actionName] {
    if (!document) return;
    const Brand present = document->brand();
    const Brand next = reapplied(after, before, present);
    document->setBrand(next);
    if (document) registerStep(*document, present, next, undoManager, actionName);
  });
  undoManager.setActionName(actionName);
}

}  // namespace

void BrandDocument::mutate(const QString& actionName, UndoManager* undoManager,
                           const std::function<void(Brand&)>& change) {
  const Brand before = brand_;
  Brand working = before;
  change(working);
  if (working == before) return;
  setBrand(working);
  if (undoManager) registerStep(*this, before, working, *undoManager, actionName);
}

void BrandDocument::registerRestore(const Brand& brand, UndoManager& undoManager,
                                    const QString& actionName) {
  registerStep(*this, brand, brand_, undoManager, actionName);
}

void BrandDocument::editSection(const QUuid& section, const std::function<void(Section&)>& change) {
  const qsizetype index = indexOf(brand_.sections, section);
  if (index >= 0) edit([&](Brand& brand) { change(brand.sections[index]); });
}

void BrandDocument::updateItem(const QUuid& item, const std::function<void(Item&)>& change) {
  if (!brand_.holdsAt(updated_, item)) {
    const auto place = brand_.placeOf(item);
    if (!place) return;
    updated_ = *place;
  }
  edit([&](Brand& brand) { change(brand.sections[updated_.section].items[updated_.item]); });
}

void BrandDocument::removeSection(const QUuid& section) {
  const qsizetype index = indexOf(brand_.sections, section);
  if (index >= 0) edit([&](Brand& brand) { brand.sections.removeAt(index); });
}

void BrandDocument::removeItem(const QUuid& item) {
  const auto place = brand_.placeOf(item);
  if (!place) return;
  edit([&](Brand& brand) { (void)brand.sections[place->section].items.takeAt(place->item); });
}

void BrandDocument::addItem(const Item& item, const QUuid& section) { addItems({item}, section); }

void BrandDocument::addItems(const QList<Item>& items, const QUuid& section) {
  const qsizetype target = indexOf(brand_.sections, section);
  if (target < 0 || items.isEmpty()) return;
  edit([&](Brand& brand) {
    for (const Item& item : items) brand.sections[target].items.append(item);
  });
}

void BrandDocument::moveItem(const QUuid& item, const QUuid& toSection,
                             const std::optional<QUuid>& before) {
  if (before == item) return;
  const auto place = brand_.placeOf(item);
  const qsizetype target = indexOf(brand_.sections, toSection);
  if (!place || target < 0) return;
  Item moved;
  edit([&](Brand& brand) { moved = brand.sections[place->section].items.takeAt(place->item); });
  edit([&](Brand& brand) {
    SharedList<Item>& items = brand.sections[target].items;
    items.insert(insertionIndex(items, before), moved);
  });
}

void BrandDocument::moveSection(const QUuid& section, const std::optional<QUuid>& before) {
  if (before == section) return;
  const qsizetype index = indexOf(brand_.sections, section);
  if (index < 0) return;
  Section moved;
  edit([&](Brand& brand) { moved = brand.sections.takeAt(index); });
  edit([&](Brand& brand) { brand.sections.insert(insertionIndex(brand.sections, before), moved); });
}

void BrandDocument::openAssetFolder(std::function<void(const Result<AssetFolder>&)> done) {
  services_.disk.ask([&files = services_.files,
                      writer = writer_] { return AssetFolder::make(files, writer->packageURL()); },
                     std::move(done));
}

Result<AssetRef> BrandDocument::importAsset(const QString& source) {
  return AssetFolder::make(services_.files, packageURL_).and_then([&](const AssetFolder& folder) {
    Progress progress;
    return folder.copyIn(source, progress);
  });
}

Result<AssetRef> BrandDocument::importImageData(const QByteArray& data,
                                                const QString& suggestedName,
                                                const QString& extension) {
  return AssetFolder::make(services_.files, packageURL_).and_then([&](const AssetFolder& folder) {
    return folder.write(data, suggestedName, extension);
  });
}

}  // namespace tarnloft
