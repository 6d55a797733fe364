#include "shell/window/AccentTint.h"

#include "pictures/HexColor.h"

namespace tarnloft {

AccentTint::AccentTint(LibraryStore& library, Theme& theme) : library_(library), theme_(theme) {
  const LibraryPreferences& preferences = library.preferences();
  connect(&library, &LibraryStore::openDocumentChanged, this, &AccentTint::apply);
  connect(&library, &LibraryStore::brandChanged, this, &AccentTint::apply);
  connect(&preferences, &LibraryPreferences::defaultAccentHexChanged, this, &AccentTint::apply);
  connect(&preferences, &LibraryPreferences::defaultAccentHexDarkChanged, this, &AccentTint::apply);
  connect(&theme, &Theme::changed, this, &AccentTint::apply);
  apply();
}

void AccentTint::apply() {
  const auto look = theme_.isDark() ? ColorUtil::Appearance::dark : ColorUtil::Appearance::light;
  theme_.setAccent(shownColor(library_.effectiveAccentHex(look)));
}

}  // namespace tarnloft
