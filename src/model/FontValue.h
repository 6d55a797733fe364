#pragma once

#include "model/AssetRef.h"

#include <optional>

namespace tarnloft {

struct FontValue {
  QString family;
  std::optional<QString> weight;  // weight or style word, such as "Bold"
  std::optional<QString> sampleText;
  std::optional<AssetRef> asset;  // the font file; none means a font known by name only
  std::optional<QString> name;

  bool operator==(const FontValue&) const = default;
};

}  // namespace tarnloft
