#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace tarnloft {

// The colour that a stored accent stands for; gray for a text that isn't one.
QColor accentColor(const QString& hex);
// Nothing, for QML, if there is no accent.
std::optional<QColor> accentColor(const std::optional<QString>& hex);

}  // namespace tarnloft
