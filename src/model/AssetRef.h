#pragma once

#include <QString>

namespace tarnloft {

// A file in a package's `assets` folder. Both names come from the package and are not to be trusted
// as paths; `Package` checks `filename` before it is opened.
struct AssetRef {
  QString filename;      // stored name, `<UUID>.<extension>`
  QString originalName;  // the user's own name for the file, and that of a dragged-out copy

  bool operator==(const AssetRef&) const = default;
};

}  // namespace tarnloft
