#pragma once

#include "controls/sheets/NameSheet.h"
#include "document/UndoHistory.h"
#include "platform/desktop/dragging/DragData.h"
#include "platform/desktop/dragging/MimeDrops.h"
#include "testing/FakeDragging.h"
#include "testing/FakeDrops.h"
#include "testing/FakeMedia.h"
#include "testing/TestLibrary.h"
#include "workspace/BrandWorkspace.h"

#include <QCoreApplication>

namespace tarnloft {

// A library on the real disk and what brands' pages need of the desktop, which the test plays.
struct TestDesktop {
  TestLibrary library;
  FakeImages images;
  FakeVideos videos;
  FakeClips clips;
  FakeTypes types;
  FakeFonts fonts;
  ListedPasteboard pasteboard;
  ListedDrags drags;
  QThreadPool workers;
  QThreadPool dragThreads;
  BackgroundWork work{1};
  ThumbnailLoader loader{images, work};
  Thumbnails thumbnails{loader};
  Posters posters{videos, work};
  AssetSpecs specs{library.disk.files, images, videos, work};
  MimeDrops drops{workers};

  // Of the library as it was started last.
  WorkspaceServices services() {
    return {.library = *library.store,
            .preferences = library.preferences,
            .pasteboard = pasteboard,
            .dialogs = library.dialogs,
            .viewer = library.viewer,
            .thumbnails = thumbnails,
            .posters = posters,
            .specs = specs,
            .clipPlayers = clips,
            .work = work,
            .imports = {types, fonts, workers, {}},
            .drops = drops,
            .drags = {library.disk.files, types, images},
            .dragThreads = dragThreads,
            .dragSession = drags};
  }
};

// A brand that is open in a workspace.
class TestWorkspace : public TestDesktop {
 public:
  explicit TestWorkspace(const QList<Section>& sections) {
    library.add("Acme", sections);
    library.start();
    makeWorkspace();
  }
  BrandDocument& document() { return *library.store->openDocument(); }
  SectionModel& section(int index) { return *workspace->sections()->models().at(size_t(index)); }
  const Section& stored(int index) { return document().brand().sections.at(index); }
  QStringList names(int section) {
    QStringList result;
    for (const Item& item : stored(section).items) result << item.displayName();
    return result;
  }
  QStringList shown(int index) {
    QStringList result;
    for (const Item& item : section(index).items()->items()) result << item.displayName();
    return result;
  }
  // Lets what is due in the event loop happen.
  static void turn() { QCoreApplication::processEvents(); }
  void addSection(const QString& name) {
    workspace->askNewSection();
    auto* const sheet = qobject_cast<NameSheet*>(sheets.current());
    sheet->setText(name);
    sheet->confirm();
  }
  // Of the document that is open now.
  void makeWorkspace() {
    workspace = std::make_unique<BrandWorkspace>(
        document(), WindowParts{selection, toasts, sheets, &undo}, services());
  }

  UndoHistory undo;
  TileSelection selection;
  ToastCenter toasts;
  SheetHost sheets;
  std::unique_ptr<BrandWorkspace> workspace;
};

}  // namespace tarnloft
