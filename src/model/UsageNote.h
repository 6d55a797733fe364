#pragma once

#include "model/EnumTable.h"

#include <QString>
#include <QUuid>

namespace tarnloft {

enum class UsageKind { doRule, dontRule, note };

template <>
struct EnumTable<UsageKind> {
  static constexpr std::array cases{
      EnumCase<UsageKind>{UsageKind::doRule, "do"},
      EnumCase<UsageKind>{UsageKind::dontRule, "dont"},
      EnumCase<UsageKind>{UsageKind::note, "note"},
  };
};

// One do or don't of an asset.
struct UsageNote {
  QUuid id;
  UsageKind kind = UsageKind::note;
  QString text;

  bool operator==(const UsageNote&) const = default;
};

}  // namespace tarnloft
