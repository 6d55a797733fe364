#include "sheets/AssetRenameSheet.h"

#include "sheets/ItemRenaming.h"

namespace tarnloft {
namespace {

NameSheet::Words wordsFor(const Item& item) {
  return {.title = QStringLiteral("Rename ") + item.typeLabel(),
          .confirmText = QStringLiteral("Rename"),
          .footnote = ItemRenaming::renameFootnote(item).value_or(QString())};
}

}  // namespace

AssetRenameSheet::AssetRenameSheet(std::unique_ptr<ItemBinding> item, Named renamed)
    : NameSheet(wordsFor(item->item()), item->item().displayName(),
                [item = item.get(), renamed = std::move(renamed)](const QString& name) {
                  item->update([&](Item& renaming) { ItemRenaming::applyRename(renaming, name); });
                  renamed(name);
                }),
      item_(std::move(item)) {
  connect(item_.get(), &ItemBinding::gone, this, &SheetModel::finished);
}

}  // namespace tarnloft
