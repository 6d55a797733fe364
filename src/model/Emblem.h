#pragma once

#include "model/AssetRef.h"
#include "model/EnumTable.h"

#include <optional>

namespace tarnloft {

// The small mark of a brand or a section. Kind `none` says that the user asked for no mark; a
// missing emblem lets the place that shows it choose its default.
struct Emblem {
  enum class Kind { symbol, emoji, color, image, none };

  Kind kind = Kind::none;
  std::optional<QString> symbolName;  // of a system symbol, for kind `symbol`
  std::optional<QString> emoji;       // one character, for kind `emoji`
  std::optional<QString> colorHex;    // backdrop of `symbol` and `emoji`; the circle of `color`
  std::optional<AssetRef> asset;      // the picture of kind `image`

  bool operator==(const Emblem&) const = default;
};

template <>
struct EnumTable<Emblem::Kind> {
  static constexpr std::array cases{
      EnumCase<Emblem::Kind>{Emblem::Kind::symbol, "symbol"},
      EnumCase<Emblem::Kind>{Emblem::Kind::emoji, "emoji"},
      EnumCase<Emblem::Kind>{Emblem::Kind::color, "color"},
      EnumCase<Emblem::Kind>{Emblem::Kind::image, "image"},
      EnumCase<Emblem::Kind>{Emblem::Kind::none, "none"},
  };
};

}  // namespace tarnloft
