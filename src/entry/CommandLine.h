#pragma once

#include <QString>
#include <QStringList>

#include <array>
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
  QString action;     // what it begins with instead of the main window alone: one of `actions`
  QStringList files;  // absolute paths, to open in the main window; with an action none

  bool operator==(const ApplicationMode&) const = default;
};

// What a running program, or one that is being started, can be asked for: `--quick-grab` and so on,
// on the bus by the bare name.
inline constexpr std::array actions{u"quick-grab", u"new-brand", u"preferences"};

using Mode = std::variant<SelfTestMode, PageExportMode, LogoSeedingMode, ApplicationMode>;

// What the arguments ask for, the program's own path included in them. An option with too few
// values behind it is passed over. Files are opened where there is no option at all; relative paths
// are taken from this process's folder.
Mode modeOf(const QStringList& arguments);

// What a start asks of the program that runs already, as one word without spaces, and back.
QByteArray wordOf(const ApplicationMode& asked);
ApplicationMode askedBy(const QByteArray& word);

}  // namespace tarnloft
