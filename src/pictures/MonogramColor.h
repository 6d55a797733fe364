#pragma once

#include <QColor>

namespace tarnloft {

// The colour behind a monogram: the same text gives the same colour on every machine.
QColor monogramColor(const QString& seed);

}  // namespace tarnloft
