#pragma once

#include "entry/application/DesktopServices.h"
#include "entry/media/LateMedia.h"
#include "platform/desktop/FreeTypeFonts.h"
#include "platform/desktop/MimeContentTypes.h"
#include "platform/desktop/MimeDrops.h"
#include "platform/desktop/QtDragSession.h"
#include "platform/desktop/window/DesktopPasteboard.h"
#include "workspace/WorkspaceServices.h"

#include <QThreadPool>

namespace tarnloft {

// What all workspaces share, each made once: pictures, clips, fonts, drags and drops. Borrows the
// library and the desktop's services.
class WorkspaceParts {
 public:
  WorkspaceParts(DesktopServices& desktop, LibraryStore& library);

  WorkspaceServices services();

 private:
  DesktopServices& desktop_;
  LibraryStore& library_;
  LateImages images_;
  LateVideos videos_;
  FreeTypeFonts fonts_;
  MimeContentTypes types_;
  DesktopPasteboard pasteboard_;
  QtDragSession dragSession_;
  BackgroundWork work_;
  ThumbnailLoader loader_{images_, work_};
  Thumbnails thumbnails_{loader_};
  Posters posters_{videos_, work_};
  QThreadPool importers_;  // behind what its threads use
  MimeDrops drops_{importers_};
};

}  // namespace tarnloft
