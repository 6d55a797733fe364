#pragma once

#include "document/DocumentServices.h"
#include "library/PlainBrands.h"
#include "platform/Appearance.h"
#include "platform/Archiver.h"
#include "platform/Beep.h"
#include "platform/ColorSampler.h"
#include "platform/FileDialogs.h"
#include "platform/FileViewer.h"
#include "platform/Preferences.h"
#include "platform/Trash.h"

#include <functional>
#include <memory>

namespace tarnloft {

// What the library needs of its surroundings. Borrowed: all of it outlives the store.
struct LibraryServices {
  DocumentServices document;
  Preferences& preferences;
  Appearance& appearance;
  Beep& beep;
  Trash& trash;
  Archiver& archiver;
  FileDialogs& dialogs;
  FileViewer& viewer;
  std::function<std::unique_ptr<ColorSampler>()> makeColorSampler;
  // The user's folder for the data of applications.
  QString applicationSupport;
  // The user's folder for files of the moment.
  QString temporaryFolder;
  // For what takes long, such as copies of whole packages.
  DiskWork& copies = immediateDisk();
  // For what only reads, and would be behind what is written.
  DiskWork& searches = immediateDisk();
  // Where it is kept which brand is being opened; empty for nowhere.
  QString openingFile = {};
  // Asked by those who decode the files of packages.
  std::shared_ptr<PlainBrands> plain = std::make_shared<PlainBrands>();
};

}  // namespace tarnloft
