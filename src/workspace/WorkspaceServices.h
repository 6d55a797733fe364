#pragma once

#include "assets/DropImport.h"
#include "assets/TileDrag.h"
#include "library/LibraryStore.h"
#include "pictures/AssetSpecs.h"
#include "pictures/Posters.h"
#include "pictures/Thumbnails.h"
#include "platform/ClipPlayer.h"
#include "platform/DragSession.h"
#include "platform/DroppedThing.h"
#include "platform/Pasteboard.h"

namespace tarnloft {

class SheetHost;
class TileSelection;
class ToastCenter;

// What a brand's workspace needs of its surroundings. Borrowed: all of it outlives every workspace
// and the pages that show one.
struct WorkspaceServices {
  LibraryStore& library;
  Preferences& preferences;
  Pasteboard& pasteboard;
  FileDialogs& dialogs;
  FileViewer& viewer;
  Thumbnails& thumbnails;
  Posters& posters;
  AssetSpecs& specs;
  ClipPlayers& clipPlayers;
  BackgroundWork& work;
  ImportServices imports;
  DropReader& drops;
  DragServices drags;
  QThreadPool& dragThreads;  // for DragPreparation
  DragSession& dragSession;
};

// What it shares with all else in its window, and outlives it too.
struct WindowParts {
  TileSelection& selection;
  ToastCenter& toasts;
  SheetHost& sheets;
  UndoManager* undoManager;  // null for none
};

}  // namespace tarnloft
