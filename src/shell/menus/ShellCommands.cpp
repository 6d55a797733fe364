#include "shell/menus/ShellCommands.h"

namespace tarnloft {

ShellCommands::ShellCommands(LibraryStore& library, UpdaterViewModel* updater, QObject* parent)
    : QObject(parent), library_(library), updater_(updater) {
  connect(&library, &LibraryStore::selectionChanged, this, &ShellCommands::hasSelectionChanged);
  if (updater) connect(updater, &UpdaterViewModel::changed, this, &ShellCommands::updaterChanged);
}

}  // namespace tarnloft
