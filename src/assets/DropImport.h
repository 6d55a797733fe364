#pragma once

#include "assets/ImportWork.h"
#include "assets/ItemLanding.h"
#include "platform/ContentTypes.h"
#include "platform/DroppedThing.h"
#include "platform/Fonts.h"

#include <QSet>
#include <QThreadPool>

#include <chrono>

namespace tarnloft {

// What importing needs of its surroundings. Borrowed: all of it outlives the imports that began.
struct ImportServices {
  const ContentTypes& types;
  Fonts& fonts;
  QThreadPool& workers;
  AddToClosed addToClosed;
  // Told of the files of one call that couldn't be brought in, and why the first of them couldn't.
  std::function<void(const QStringList& names, const QString& reason)> failed = nullptr;
  LongWork* told = nullptr;  // by which what takes long is told, and may be ended
};

// Files and pictures become items of a section. Main thread; files are copied and read by the
// workers, and an item comes into being, without an undo step, when its copy is whole. The items of
// one call land in its order, at the section's end, even when the document has been closed by then.
// What can't be brought in makes no item and is told; what isn't there at all, and what the user
// ended, isn't.
namespace DropImport {

enum class MediaKind { image, video };

// The path extensions, in lower case, of files that are fonts whatever the desktop says.
const QSet<QString>& fontExtensions();

// Takes a drop on a section. A tile that is dragged within the program moves to the section's end,
// and nothing else of the drop counts; each file becomes a font, a video or else an image, whatever
// it is; picture data without a file becomes an image. False if there was nothing to take.
bool handle(const ImportServices& services, const DroppedThings& things, const QUuid& section,
            BrandDocument& document);

// Takes files that the user chose as images or as videos.
void importFiles(const ImportServices& services, const QStringList& paths, MediaKind kind,
                 const QUuid& section, BrandDocument& document);

// Takes files that the user chose as fonts.
void importFontFiles(const ImportServices& services, const QStringList& paths, const QUuid& section,
                     BrandDocument& document);

// For the program's end: lets what is being brought in land, at most so long. False if something is
// still on its way. Runs no other part of the event loop.
bool finish(QThreadPool& workers, std::chrono::milliseconds patience);

}  // namespace DropImport
}  // namespace tarnloft
