#pragma once

#include "assets/DropImport.h"
#include "pictures/Thumbnails.h"
#include "testing/FakeDialogs.h"
#include "testing/FakeDrops.h"
#include "testing/FakeMedia.h"
#include "testing/TestDocument.h"

namespace tarnloft {

// What sheets that bring files in need.
struct TestImports : TestDocument {
  FakeImages images;
  FakeTypes types;
  FakeFonts fonts;
  ScriptedDialogs dialogs;
  QThreadPool workers;
  BackgroundWork work{1};
  ThumbnailLoader loader{images, work};
  Thumbnails thumbnails{loader};
  QStringList failed;

  ImportServices imports() {
    return {types, fonts, workers, {}, [this](const QStringList& names, auto) { failed << names; }};
  }
};

}  // namespace tarnloft
