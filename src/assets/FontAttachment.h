#pragma once

#include "assets/DropImport.h"

namespace tarnloft {

// Brings a font's file into the package and gives it to that font item, with the names that are in
// the file; the item's file so far stays in the package. The file is copied and read by the
// workers; the font can be drawn then. `attached` is told if all went well, `services.failed` if
// not. Nothing happens to an item that has gone meanwhile. Main thread.
void attachFont(const ImportServices& services, const QString& path, const QUuid& item,
                BrandDocument& document, std::function<void()> attached);

}  // namespace tarnloft
