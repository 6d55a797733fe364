#pragma once

#include "platform/FileStore.h"

// The temporary copy of an asset that a drag hands to other programs under the client's name.
namespace tarnloft::DragFileExport {

// Copies the file into the drag folder, "tarnloft-drag", in place of what has that name there, and
// gives the copy's path. The name is the last component of `originalName`, or that of the file
// itself where that is no plain name. Where no copy can be made, gives `assetURL`, whether or not
// it exists. The copies stay: a receiver may read one long after the drag. Takes as long as the
// copy does.
QString tempURL(FileStore& files, const QString& assetURL, const QString& originalName);

}  // namespace tarnloft::DragFileExport
