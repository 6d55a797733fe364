#pragma once

#include "model/Item.h"

namespace tarnloft {

// How items are renamed by their users. Pure functions.
namespace ItemRenaming {

// The file's name with that stem and its own extension, which a rename can't change: "Hero.png" for
// "AcmeLogo.png" and either "Hero" or "Hero.jpg".
QString renamedFilename(const QString& original, const QString& newName);

// What a rename does to the file behind the item; none where there is none.
std::optional<QString> renameFootnote(const Item& item);

// Gives the item that name, trimmed, and its file's copies too. Nothing happens for blanks.
void applyRename(Item& item, const QString& newName);

}  // namespace ItemRenaming
}  // namespace tarnloft
