#pragma once

#include "model/RecordFields.h"

namespace tarnloft {

// What a version file holds: a whole brand at one moment.
struct VersionEnvelope {
  Timestamp createdAt;
  std::optional<QString> label;
  Brand brand;

  bool operator==(const VersionEnvelope&) const = default;
};

template <>
struct RecordFields<VersionEnvelope> {
  static constexpr std::tuple fields{Field{"brand", &VersionEnvelope::brand},
                                     Field{"createdAt", &VersionEnvelope::createdAt},
                                     Field{"label", &VersionEnvelope::label}};
};

}  // namespace tarnloft
