#pragma once

#include <QString>

namespace tarnloft {

// How much of a text is shown. Laying out more than can be seen would hold up the window.
inline constexpr qsizetype mostInLine = 500;
inline constexpr qsizetype mostInTitle = 200;  // of a window
inline constexpr qsizetype mostInMenu = 80;

// The text as views and assistive technology get it: all of it, or so much of its beginning and
// "…". A cut one is never stored in place of the whole.
QString shownText(const QString& text, qsizetype most = mostInLine);

}  // namespace tarnloft
