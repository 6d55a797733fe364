#pragma once

#include "../workspace/TestWorkspace.h"

namespace tarnloft {

// What workspaces of a window need, with the desktop played by the test.
struct TestSurroundings {
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

  WorkspaceServices services(TestLibrary& library) {
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
};

}  // namespace tarnloft
