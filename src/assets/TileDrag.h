#pragma once

#include "document/PackageReader.h"
#include "model/Item.h"
#include "platform/ContentTypes.h"
#include "platform/DragSession.h"
#include "platform/Images.h"

namespace tarnloft {

// What a drag needs of its surroundings. Borrowed: all of it outlives the drags' receivers.
struct DragServices {
  FileStore& files;
  const ContentTypes& types;
  Images& images;
};

// What is dragged from a brand's tiles. Any thread; files are copied here, which takes its time.
namespace TileDrag {

// A tile of a section: the item's file, if it has one, with the item's id beside it. A block row is
// an item without a file.
DragItem makeDragProvider(const DragServices& services, const PackageReader& package,
                          const Item& item);

// The file part of that, with a TIFF form for a picture.
DragItem fileExportProvider(const DragServices& services, const PackageReader& package,
                            const AssetRef& asset);

// One file of a logo set: the file alone, so that a drop inside the program imports it.
DragItem variantProvider(FileStore& files, const PackageReader& package, const AssetRef& asset);

// Copies of those files under their clients' names, in their order; of two with one name the second
// gets a number. What can't be read is left out.
QStringList exportURLs(FileStore& files, const PackageReader& package,
                       const QList<AssetRef>& assets);

// The drag of several files.
QList<DragItem> providers(const QStringList& urls);

}  // namespace TileDrag
}  // namespace tarnloft
