#pragma once

#include <QString>

#include <string_view>

namespace tarnloft {

// The last path extension without its dot, as it stands: "png" of "Mark.png". A name that only
// begins with a dot (".png") or only ends in one has none.
QString pathExtension(const QString& path);

// What stands behind the last slash, slashes at the end left out: "Mark.png" of "a/Mark.png/".
QString lastPathComponent(const QString& path);

// True for what names an entry of a folder and nothing else: not empty, ".", "..", and without a
// slash or a NUL.
bool isPlainFileName(const QString& name);

// The same path without that extension and its dot: "a.b" of "a.b.c".
QString withoutPathExtension(const QString& path);
std::string_view withoutPathExtension(std::string_view utf8);

}  // namespace tarnloft
