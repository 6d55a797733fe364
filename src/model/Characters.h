#pragma once

#include <QString>

namespace tarnloft {

// A text's first or last character as users see characters, which may be several code points;
// empty for an empty text.
QString firstCharacter(const QString& text);
QString lastCharacter(const QString& text);

}  // namespace tarnloft
