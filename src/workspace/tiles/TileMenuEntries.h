#pragma once

#include "workspace/tiles/MenuEntry.h"

namespace tarnloft {

class TileCommands;
struct Item;
struct Section;

// What a tile's context menu offers for that item of the section: what its kind has, then what all
// have. The entries may outlive the commands; they then do nothing.
QList<MenuEntry> tileMenuEntries(const Item& item, const Section& section, TileCommands& commands);

}  // namespace tarnloft
