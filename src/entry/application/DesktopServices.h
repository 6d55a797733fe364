#pragma once

#include "library/LibraryServices.h"
#include "platform/desktop/FreedesktopTrash.h"
#include "platform/desktop/IniPreferences.h"
#include "platform/desktop/PosixFileStore.h"
#include "platform/desktop/Syslog.h"
#include "platform/desktop/ZipArchiver.h"
#include "platform/desktop/window/DesktopBeep.h"
#include "platform/desktop/window/DesktopFileDialogs.h"
#include "platform/desktop/window/DesktopFileViewer.h"

namespace tarnloft {

// What the windows' program uses of the desktop, each made once.
struct DesktopServices {
  PosixFileStore files;
  Syslog log;
  IniPreferences preferences;
  IniPreferences state{stateFile()};  // what windows keep, which is nobody's preference
  DesktopBeep beep;
  FreedesktopTrash trash;
  ZipArchiver archiver;
  DesktopFileDialogs dialogs;
  DesktopFileViewer viewer;

  LibraryServices library(Appearance& appearance);

  // "tarnloft.ini" in the user's folder for state.
  static QString stateFile();
};

}  // namespace tarnloft
