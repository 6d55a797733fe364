#pragma once

#include "pictures/EmblemLook.h"

#include <QColor>
#include <QString>

namespace tarnloft {

// What the picker of an emblem is told of the place that the emblem is for.
struct EmblemWords {
  QString title;
  EmblemPlace place;  // its package is the subject's, whatever stands here
  QColor tint;        // the ground's colour to begin with
};

}  // namespace tarnloft
