#pragma once

#include <QString>

namespace tarnloft {

// What stands behind the last slash.
QString lastPathComponent(const QString& path);

// The last path extension without its dot, as it stands: "png" of "Mark.png". A name that only
// begins with a dot (".png") or only ends in one has none.
QString pathExtension(const QString& path);

// The same path without that extension and its dot: "a.b" of "a.b.c".
QString withoutPathExtension(const QString& path);

}  // namespace tarnloft
