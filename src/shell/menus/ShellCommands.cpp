#include "shell/menus/ShellCommands.h"

namespace tarnloft {

ShellCommands::ShellCommands(LibraryStore& library, QObject* parent)
    : QObject(parent), library_(library) {
  connect(&library, &LibraryStore::selectionChanged, this, &ShellCommands::hasSelectionChanged);
}

}  // namespace tarnloft
