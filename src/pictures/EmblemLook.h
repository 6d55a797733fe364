#pragma once

#include "model/Emblem.h"
#include "platform/FileStore.h"

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The words in which a look is told.
namespace EmblemStyle {

enum class Ground {
  NoGround,
  Filled,  // with the look's colour
  Quiet    // with the secondary colour, thinned to a fifth
};

// What the look's text is.
enum class Mark {
  NoMark,
  Symbol,    // a system symbol's name
  Bare,      // the same, as large as the circle that it stands in place of
  Emoji,     // the emoji itself
  Monogram,  // one letter
  Picture    // a file's path
};

enum class Ink { Primary, Black, White, Fallback };

}  // namespace EmblemStyle

// What an emblem shows: a circle with a mark on it. A value that QML hands to an `EmblemView`.
class EmblemLook {
  Q_GADGET
  QML_VALUE_TYPE(emblemLook)

 public:
  EmblemStyle::Ground ground = EmblemStyle::Ground::NoGround;
  QColor color;
  EmblemStyle::Mark mark = EmblemStyle::Mark::NoMark;
  QString text;
  EmblemStyle::Ink ink = EmblemStyle::Ink::Primary;

  bool operator==(const EmblemLook&) const = default;
};

// The place that shows an emblem, and what it shows without one.
struct EmblemPlace {
  QString defaultSymbol;
  QString packageURL;    // where a picture's file is
  QString monogramSeed;  // one that isn't blank gives a monogram instead of the symbol
  std::optional<QColor> monogramColor;
};

// A picture whose file's name leads out of its package counts as none.
EmblemLook emblemLook(const std::optional<Emblem>& emblem, const EmblemPlace& place);

}  // namespace tarnloft
