#pragma once

#include "document/UndoHistory.h"
#include "platform/desktop/dragging/DragData.h"
#include "platform/desktop/dragging/MimeDrops.h"
#include "testing/FakeDrops.h"
#include "testing/TestLibrary.h"
#include "workspace/BrandWorkspace.h"

#include <QCoreApplication>

namespace tarnloft {

class ListedPasteboard : public Pasteboard {
 public:
  QStringList texts;
  void setText(const QString& text) override { texts << text; }
};

// Remembers what was dragged; `during` is what happens until the user lets go.
class ListedDrags : public DragSession {
 public:
  QList<DragItem> items;
  QImage picture;
  QPoint hotSpot;
  std::function<void()> during;
  void drag(const QList<DragItem>& dragged, const DragLook& look) override {
    items = dragged;
    picture = look.picture;
    hotSpot = look.hotSpot;
    if (during) during();
  }
};

// A picture of the size that was asked for, in one colour; none for a file whose name says
// "broken".
class FakeImages : public Images {
 public:
  QList<int> asked;
  std::optional<ImageProperties> properties(const QString&) override { return std::nullopt; }
  std::optional<QSizeF> vectorSize(const QString&) override { return std::nullopt; }
  std::optional<QImage> thumbnail(const QString& path, int maxPixel) override {
    asked << maxPixel;
    if (path.contains("broken")) return std::nullopt;
    QImage image(maxPixel, maxPixel / 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    return image;
  }
  std::optional<QByteArray> convert(const QString&, ExportFormat, QSize, double) override {
    return std::nullopt;
  }
};

class FakeVideos : public Videos {
 public:
  std::optional<VideoProperties> properties(const QString&) override { return std::nullopt; }
  std::optional<QImage> frame(const QString& path, double seconds, int maxPixel) override {
    askedSeconds = seconds;
    if (path.contains("broken")) return std::nullopt;
    QImage image(maxPixel, maxPixel, QImage::Format_RGB32);
    image.fill(Qt::blue);
    return image;
  }
  double askedSeconds = -1;
};

// A brand that is open in a workspace, on the real disk, with the desktop played by the test.
class TestWorkspace {
 public:
  explicit TestWorkspace(const QList<Section>& sections) : TestWorkspace(sections, ownImages) {}
  TestWorkspace(const QList<Section>& sections, Images& images)
      : loader(images, work), thumbnails(loader) {
    library.add("Acme", sections);
    library.start();
    makeWorkspace();
  }
  // Of a copy of that package.
  TestWorkspace(const QString& package, Images& images) : loader(images, work), thumbnails(loader) {
    QDir().mkpath(library.folder);
    (void)library.disk.files.copyFolder(package, library.packagePath("Copy"));
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
  // Of the document that is open now.
  void makeWorkspace() {
    workspace = std::make_unique<BrandWorkspace>(document(), selection, toasts, &undo, services());
  }

  TestLibrary library;
  FakeImages ownImages;
  FakeVideos videos;
  FakeTypes types;
  FakeFonts fonts;
  ListedPasteboard pasteboard;
  ListedDrags drags;
  UndoHistory undo;
  TileSelection selection;
  ToastCenter toasts;
  QThreadPool workers;
  BackgroundWork work{1};
  ThumbnailLoader loader;
  Thumbnails thumbnails;
  Posters posters{videos, work};
  MimeDrops drops{workers};
  std::unique_ptr<BrandWorkspace> workspace;

 private:
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
};

}  // namespace tarnloft
