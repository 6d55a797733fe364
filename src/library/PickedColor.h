#pragma once

#include "model/Brand.h"

namespace tarnloft::PickedColor {

// Appends a colour to the section of that id if it still exists, else to the first section named
// for colours, else to the first that holds one, else to a new section "Colors". Gives its id.
QUuid add(Brand& brand, const QString& hex, const std::optional<QUuid>& preferredSection);

}  // namespace tarnloft::PickedColor
