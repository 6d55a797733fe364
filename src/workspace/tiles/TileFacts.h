#pragma once

#include "model/Item.h"
#include "pictures/Backdrop.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The kinds of item, for QML: `TileKind.Color`.
namespace TileKind {
Q_NAMESPACE
QML_ELEMENT

enum class Kind { Header, Text, Color, Gradient, Image, Video, Font, Code, Logo };
Q_ENUM_NS(Kind)

}  // namespace TileKind

// What a tile shows of its item. Pure functions.
namespace TileFacts {

TileKind::Kind kind(const Item& item);
// A row of text between tiles.
bool isBlock(const Item& item);

// The line under the tile's name; none for many.
std::optional<QString> subcaption(const Item& item);
// The same question, cheap enough to be asked of every item of a section.
bool hasSubcaption(const Item& item);

// The menu's entry for its rules, which counts them.
QString notesText(const Item& item);

// What a click or a drag of the tile does; empty for none.
QString helpText(const Item& item);
// For assistive technology, such as "Color, Brand Blue, hex #123456".
QString accessibilityDescription(const Item& item);

// The file whose picture the tile is: an image's, or a logo set's primary one.
std::optional<AssetRef> picture(const Item& item);
Backdrop::Kind backdrop(const Item& item);
// The name by which a picture that can't be read is told; none for one without.
std::optional<QString> pictureName(const Item& item);

}  // namespace TileFacts
}  // namespace tarnloft
