#pragma once

#include <QFont>
#include <QString>

namespace tarnloft {

// The interface's typeface, with fallbacks where it isn't installed. Sizes are logical pixels.
QFont interfaceFont(int pixelSize, QFont::Weight weight = QFont::Normal);

// For a text that is an emoji: in colour even where a typeface has the character too, as a heart.
QFont emojiFont(int pixelSize);

// For code and other text in columns.
QFont monospacedFont(int pixelSize, QFont::Weight weight = QFont::Normal);

// Sets the default font, the way that windows draw text, and that an ampersand in a text is a
// letter like any other. Call it once, after the application object and before the first window.
void prepareTypography();

// Makes ready what drawing such a text takes, so that the first frame needn't. A font that is
// registered later undoes it.
void loadFont(const QFont& font, const QString& text = QStringLiteral("Brand 0123456789"));

}  // namespace tarnloft
