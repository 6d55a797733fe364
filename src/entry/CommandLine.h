#pragma once

#include <QString>
#include <QStringList>

#include <variant>

namespace tarnloft {

struct SelfTestMode {
  bool operator==(const SelfTestMode&) const = default;
};

struct PageExportMode {
  QString packageURL;
  QString outputPath;

  bool operator==(const PageExportMode&) const = default;
};

struct LogoSeedingMode {
  QString packageURL;

  bool operator==(const LogoSeedingMode&) const = default;
};

struct ApplicationMode {
  bool isQuickGrab = false;  // it begins with the panel instead of the main window

  bool operator==(const ApplicationMode&) const = default;
};

using Mode = std::variant<SelfTestMode, PageExportMode, LogoSeedingMode, ApplicationMode>;

// What the arguments ask for, the program's own path included in them. An option with too few
// values behind it is passed over.
Mode modeOf(const QStringList& arguments);

}  // namespace tarnloft
