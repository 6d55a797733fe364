#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace tarnloft {

// Every character as it stands, a leading U+FEFF too, which QString takes for a byte-order mark and
// drops. The text must be valid UTF-8.
QString textFromUtf8(std::string_view utf8);

void appendUtf8(const QString& text, std::string& utf8);

bool isAscii(std::string_view utf8);

}  // namespace tarnloft
