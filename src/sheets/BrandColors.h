#pragma once

#include "model/Brand.h"

#include <QColor>
#include <QList>

namespace tarnloft {

// A brand's colours, each once, in its order; as many as a small panel shows.
QList<QColor> brandColors(const Brand& brand);

}  // namespace tarnloft
