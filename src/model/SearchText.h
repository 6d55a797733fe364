#pragma once

#include <QString>

namespace tarnloft {

// The text made fit for comparing whatever the case, in the user's language: composed, and with its
// case folded. One text contains another exactly if its folded form contains the other's.
QString foldedForSearch(const QString& text);

}  // namespace tarnloft
