#pragma once

#include "platform/desktop/images/ImageFile.h"

namespace tarnloft {

// True if a bitmap (`bmp`) or a TIFF has lost its end, which their decoders pass over: they would
// show other colours, or what lay in memory. False for all other kinds, whose decoders notice.
bool isCut(const ImageFile& file);

}  // namespace tarnloft
