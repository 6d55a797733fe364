#include "entry/application/AppWindows.h"

#include "controls/motion/Motion.h"
#include "controls/symbols/SymbolFont.h"

#include <utility>

namespace tarnloft {

AppWindows::AppWindows(DesktopServices& services, LibraryStore& library, MenuBarPrefs& menuBar,
                       UpdaterViewModel& updater, std::function<HotKeySettings*()> hotKey,
                       bool beginsWithMain)
    : mainViews(beginsWithMain
                    ? std::optional<ViewLoading>(std::in_place, engine, MainWindow::url())
                    : std::nullopt),
      theme(Theme::of(engine)),
      tint(library, theme),
      main(engine, services.forWorkspace(library), services.state, &updater),
      settings(engine, services.forSettings(library, menuBar, updater, std::move(hotKey))) {
  symbols::fontFamily();  // registered before any text, which it would lay out again
  ViewLoading::answer();
  services.motion.follow(
      [&motion = Motion::of(engine)](bool reduced) { motion.setReduced(reduced); });
}

}  // namespace tarnloft
