#pragma once

#include "assets/DropImport.h"
#include "assets/TileDrag.h"
#include "library/LibraryStore.h"
#include "pictures/Posters.h"
#include "pictures/Thumbnails.h"
#include "platform/ColorSampler.h"
#include "platform/DragSession.h"
#include "platform/DroppedThing.h"
#include "platform/Pasteboard.h"

namespace tarnloft {

// What a brand's workspace needs of its surroundings. Borrowed: all of it outlives every workspace
// and the pages that show one.
struct WorkspaceServices {
  LibraryStore& library;
  Preferences& preferences;
  Pasteboard& pasteboard;
  FileDialogs& dialogs;
  std::function<std::unique_ptr<ColorSampler>()> makeColorSampler;
  Thumbnails& thumbnails;
  Posters& posters;
  ImportServices imports;
  DropReader& drops;
  DragServices drags;
  DragSession& dragSession;
};

}  // namespace tarnloft
