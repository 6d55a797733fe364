#pragma once

#include "assets/ExportEstimate.h"
#include "platform/DragSession.h"
#include "platform/FileStore.h"
#include "platform/Pasteboard.h"

// What a converted picture is handed out as. Slow: each converts the whole picture. Any thread.
namespace tarnloft::ExportHandout {

// None if it can't be converted, as for all below.
std::optional<QByteArray> bytes(Images& images, const ExportTarget& target,
                                const ExportChoice& choice);

// The converted picture in its format and, for programs that know no other, as TIFF and as PNG.
// Empty for none.
QList<PasteboardForm> forms(Images& images, FileStore& files, const ExportTarget& target,
                            const ExportChoice& choice);

// A file under the client's name in the folder for exports, "tarnloft-export", in place of what has
// that name there; it stays, as a receiver may read it long after the drag. Without a file if it
// can't be made.
DragItem dragItem(Images& images, FileStore& files, const ExportTarget& target,
                  const ExportChoice& choice);

// "Hero.jpg"; shorter where the client's name is too long for a file.
QString fileName(const ExportTarget& target, ExportFormat format);

}  // namespace tarnloft::ExportHandout
