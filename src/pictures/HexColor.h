#pragma once

#include <QColor>
#include <QString>

namespace tarnloft {

// The colour that a stored text such as "#4C6FFF" stands for; invalid for a text that isn't one.
QColor colorOf(const QString& hex);

// The same for what must show something: gray for such a text.
QColor shownColor(const QString& hex);

// "#4C6FFF", without the colour's opacity.
QString hexOf(const QColor& color);

}  // namespace tarnloft
