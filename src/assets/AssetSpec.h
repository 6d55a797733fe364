#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tarnloft {

// What an expanded tile tells of its file.
struct AssetSpec {
  std::optional<QString> dimensions;  // "1200 × 630 px", or "Scalable"
  std::optional<QString> format;      // "PNG"
  std::optional<QString> fileSize;    // "2.4 MB"
  QStringList flags;                  // "Transparent", "144 dpi", a clip's "1:05"

  bool operator==(const AssetSpec&) const = default;

  // All that is there, in this order, joined by " · "; empty if nothing is.
  QString line() const;
};

}  // namespace tarnloft
