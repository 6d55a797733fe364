#pragma once

#include <QString>

namespace tarnloft {

// The text with its case folded. One text contains another whatever their case exactly if its
// folded form contains the other's.
inline QString foldedForSearch(const QString& text) { return text.toCaseFolded(); }

}  // namespace tarnloft
