#pragma once

#include "shell/window/ContentModel.h"
#include "workspace/TestWorkspace.h"

namespace tarnloft {

// A library on the real disk and what a window's content needs, with the desktop played by the
// test.
struct TestShell {
  TestLibrary library;
  FakeImages images;
  FakeVideos videos;
  FakeTypes types;
  FakeFonts fonts;
  ListedPasteboard pasteboard;
  ListedDrags drags;
  QThreadPool workers;
  BackgroundWork work{1};
  ThumbnailLoader loader{images, work};
  Thumbnails thumbnails{loader};
  Posters posters{videos, work};
  MimeDrops drops{workers};

  // Of the library as it was started last.
  WorkspaceServices services() {
    return {*library.store,
            library.preferences,
            pasteboard,
            library.dialogs,
            library.services().makeColorSampler,
            thumbnails,
            posters,
            {types, fonts, workers, {}},
            drops,
            {library.disk.files, types, [](const QString&, qint64) { return std::nullopt; }},
            drags};
  }
  std::unique_ptr<ContentModel> makeContent() {
    return std::make_unique<ContentModel>(library.services(), services());
  }
};

}  // namespace tarnloft
