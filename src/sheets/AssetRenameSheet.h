#pragma once

#include "controls/sheets/NameSheet.h"
#include "document/ItemBinding.h"

namespace tarnloft {

// The sheet that renames an item, and the file that it hands out. It goes with the item. Main
// thread.
class AssetRenameSheet : public tarnloft::NameSheet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want it")

 public:
  // `renamed` is told the new name.
  AssetRenameSheet(std::unique_ptr<ItemBinding> item, Named renamed);

 private:
  const std::unique_ptr<ItemBinding> item_;
};

}  // namespace tarnloft
