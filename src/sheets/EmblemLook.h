#pragma once

#include "model/Emblem.h"
#include "platform/FileStore.h"

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The words in which a look is told, for QML: `EmblemStyle.Quiet`.
namespace EmblemStyle {
Q_NAMESPACE
QML_ELEMENT

enum class Ground {
  NoGround,
  Filled,  // with the look's colour
  Quiet    // with the secondary colour, thinned to a fifth
};
Q_ENUM_NS(Ground)

// What the look's text is.
enum class Mark {
  NoMark,
  Symbol,    // a system symbol's name
  Bare,      // the same, as large as the circle that it stands in place of
  Emoji,     // the emoji itself
  Monogram,  // one letter
  Picture    // a file's path
};
Q_ENUM_NS(Mark)

enum class Ink { Primary, Black, White, Fallback };
Q_ENUM_NS(Ink)

}  // namespace EmblemStyle

// What an emblem shows: a circle with a mark on it. A value for QML; `EmblemView` draws it.
class EmblemLook {
  Q_GADGET
  QML_VALUE_TYPE(emblemLook)
  // Compiled QML reads no enumerations from values, but numbers.
  Q_PROPERTY(int ground READ groundNumber)
  Q_PROPERTY(QColor color MEMBER color)
  Q_PROPERTY(int mark READ markNumber)
  Q_PROPERTY(QString text MEMBER text)
  Q_PROPERTY(int ink READ inkNumber)

 public:
  EmblemStyle::Ground ground = EmblemStyle::Ground::NoGround;
  QColor color;
  EmblemStyle::Mark mark = EmblemStyle::Mark::NoMark;
  QString text;
  EmblemStyle::Ink ink = EmblemStyle::Ink::Primary;

  bool operator==(const EmblemLook&) const = default;

  int groundNumber() const { return int(ground); }
  int markNumber() const { return int(mark); }
  int inkNumber() const { return int(ink); }
};

// The place that shows an emblem, and what it shows without one.
struct EmblemPlace {
  QString defaultSymbol;
  QString packageURL;    // where a picture's file is
  QString monogramSeed;  // one that isn't blank gives a monogram instead of the symbol
  std::optional<QColor> monogramColor;
};

// A picture whose file leads out of its package counts as none.
EmblemLook emblemLook(const std::optional<Emblem>& emblem, const EmblemPlace& place,
                      const FileStore& files);

}  // namespace tarnloft
