#pragma once

#include "model/AssetRef.h"
#include "model/ImageBackground.h"

#include <QList>
#include <QUuid>

#include <optional>

namespace tarnloft {

struct Item;

// In the order of every role menu.
enum class LogoRole {
  primary,
  secondary,
  mono,
  reversed,
  horizontal,
  stacked,
  icon,
  wordmark,
  emblem
};

template <>
struct EnumTable<LogoRole> {
  static constexpr std::array cases{
      EnumCase<LogoRole>{LogoRole::primary, "primary"},
      EnumCase<LogoRole>{LogoRole::secondary, "secondary"},
      EnumCase<LogoRole>{LogoRole::mono, "mono"},
      EnumCase<LogoRole>{LogoRole::reversed, "reversed"},
      EnumCase<LogoRole>{LogoRole::horizontal, "horizontal"},
      EnumCase<LogoRole>{LogoRole::stacked, "stacked"},
      EnumCase<LogoRole>{LogoRole::icon, "icon"},
      EnumCase<LogoRole>{LogoRole::wordmark, "wordmark"},
      EnumCase<LogoRole>{LogoRole::emblem, "emblem"},
  };
};

// The role as users read it, such as "Icon / Favicon".
QString label(LogoRole role);

// One file of a logo set.
struct LogoVariant {
  QUuid id;
  AssetRef asset;
  LogoRole role = LogoRole::primary;
  std::optional<ImageBackground> background;  // none means the default backdrop

  bool operator==(const LogoVariant&) const = default;
};

struct LogoValue {
  QString name;
  QList<LogoVariant> variants;  // in the user's order; may be empty

  bool operator==(const LogoValue&) const = default;

  // The first variant of role `primary`, else the first of all, else none.
  std::optional<LogoVariant> primary() const;

  // One new image item for each variant, in order, named so that files of the same name stay apart.
  QList<Item> ungroupedImageItems() const;
};

}  // namespace tarnloft
