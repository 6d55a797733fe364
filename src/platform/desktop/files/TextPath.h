#pragma once

#include <QString>

namespace tarnloft {

// A text that names what the bytes of a path name. Bytes that are no text form a path through the
// folder that they name, or in which what they name stands: it is held open until the process ends.
// Where neither is a folder, or the name itself is no text, it is one that names nothing and can't
// be made.
QString textPathOf(const char* path);

}  // namespace tarnloft
