#pragma once

#include "controls/loading/DeferredEnds.h"
#include "controls/loading/ViewLoading.h"
#include "controls/theme/Theme.h"
#include "entry/application/DesktopServices.h"
#include "settings/SettingsWindow.h"
#include "shell/window/AccentTint.h"
#include "shell/window/MainWindow.h"

#include <QQmlEngine>

#include <optional>

namespace tarnloft {

// What the program shows of itself, and the engine under it. Made when the first of it is wanted:
// a program that waits in the tray does without. Main thread.
struct AppWindows {
  // Borrowed: all outlive this. The main window's views begin to load where that comes first.
  AppWindows(DesktopServices& services, LibraryStore& library, MenuBarPrefs& menuBar,
             UpdaterViewModel& updater, std::function<HotKeySettings*()> hotKey,
             bool beginsWithMain);

  DeferredEnds viewEnds;  // of what the engine leaves
  QQmlEngine engine;
  std::optional<ViewLoading> mainViews;  // beside all that follows
  Theme& theme;
  AccentTint tint;
  MainWindow main;
  SettingsWindow settings;
};

}  // namespace tarnloft
