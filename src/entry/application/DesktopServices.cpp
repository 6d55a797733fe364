#include "entry/application/DesktopServices.h"

#include "entry/SupportFolder.h"
#include "platform/desktop/window/DesktopColorSampler.h"

#include <QDir>

namespace tarnloft {

LibraryServices DesktopServices::library(Appearance& appearance) {
  return {{files, log},
          preferences,
          appearance,
          beep,
          trash,
          archiver,
          dialogs,
          viewer,
          [] { return std::make_unique<DesktopColorSampler>(); },
          SupportFolder::applicationSupportFolder(),
          QDir::tempPath()};
}

QString DesktopServices::stateFile() {
  // The toolkit of this version doesn't know the folder.
  const QString folder = qEnvironmentVariable("XDG_STATE_HOME");
  const bool usable = QDir::isAbsolutePath(folder);
  return (usable ? folder : QDir::homePath() + QStringLiteral("/.local/state")) +
         QStringLiteral("/tarnloft.ini");
}

}  // namespace tarnloft
