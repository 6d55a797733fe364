#pragma once

#include "model/Brand.h"

namespace tarnloft {

// One row of the library's listing.
struct BrandSummary {
  QString packageURL;  // the package's path, the row's identity
  QString name;        // the folder's, if the manifest can't be read
  std::optional<Emblem> emblem;
  std::optional<QString> accentHex;
  std::optional<QString> accentHexDark;
  QUuid brandID;  // a new one, if the manifest can't be read

  bool operator==(const BrandSummary&) const = default;
};

}  // namespace tarnloft
