#include "settings/SettingsModel.h"

#include "pictures/HexColor.h"

#include <QPointer>

#include <utility>

namespace tarnloft {

using namespace std::chrono_literals;

SettingsModel::SettingsModel(const SettingsServices& services, QObject* parent)
    : QObject(parent), services_(services) {
  const LibraryStore* const library = &services.library;
  connect(library, &LibraryStore::libraryURLChanged, this, &SettingsModel::locationChanged);
  connect(library, &LibraryStore::libraryURLChanged, this, [this] { setRefusal({}); });
  connect(library, &LibraryStore::libraryRefused, this, &SettingsModel::setRefusal);
  connect(library, &LibraryStore::libraryProblemChanged, this,
          &SettingsModel::libraryProblemChanged);
  using Kept = LibraryPreferences;
  const Kept* const kept = &preferences();
  connect(kept, &Kept::colorCopyFormatChanged, this, &SettingsModel::colorCopyFormatChanged);
  connect(kept, &Kept::assetDisplayModeChanged, this, &SettingsModel::assetDisplayModeChanged);
  connect(kept, &Kept::appearanceModeChanged, this, &SettingsModel::appearanceModeChanged);
  connect(kept, &Kept::defaultAccentHexChanged, this, &SettingsModel::defaultAccentChanged);
  slowness_.setSingleShot(true);
  slowness_.setInterval(1500ms);
  desktopCheck_.setInterval(3s);
  connect(&desktopCheck_, &QTimer::timeout, this, &SettingsModel::lookAtDesktop);
  lookAtDesktop();
}

void SettingsModel::followDesktop() {
  lookAtDesktop();
  desktopCheck_.start();
  emit loginChanged();
  emit hotKeyChanged();
}

void SettingsModel::chooseFolder() {
  const QPointer self(this);
  const auto folder =
      services_.dialogs.chooseFolder(services_.library.libraryURL(), QStringLiteral("Use Folder"));
  if (!self || !folder) return;  // the program may have ended meanwhile
  setRefusal({});
  slowness_.callOnTimeout(this, [this, path = *folder] {
    setRefusal(QStringLiteral("“%1” doesn't answer.").arg(path));
  });
  slowness_.start();
  services_.library.setLibraryURL(*folder);
}

void SettingsModel::startAtLogin(bool start) {
  const auto changed = services_.loginItem.setOn(start);
  loginProblem_ = changed ? QString() : changed.error().message;
  emit loginChanged();
}

void SettingsModel::setRefusal(const QString& reason) {
  slowness_.stop();
  slowness_.disconnect(this);
  if (std::exchange(refusal_, reason) != reason) emit refusalChanged();
}

void SettingsModel::revealFolder() { services_.viewer.reveal(services_.library.libraryURL()); }

void SettingsModel::setColorCopyFormat(int format) {
  preferences().setColorCopyFormat(ColorCopyFormat(format));
}

QStringList SettingsModel::colorCopyFormats() {
  QStringList names;
  for (const auto& each : EnumTable<ColorCopyFormat>::cases) names << label(each.value);
  return names;
}

void SettingsModel::setAssetDisplayMode(int mode) {
  preferences().setAssetDisplayMode(AssetDisplayMode(mode));
}

void SettingsModel::setAppearanceMode(int mode) {
  preferences().setAppearanceMode(AppearanceMode(mode));
}

QColor SettingsModel::defaultAccent() const { return shownColor(preferences().defaultAccentHex()); }

void SettingsModel::setDefaultAccent(const QColor& color) {
  preferences().setDefaultAccentHex(hexOf(color));
}

// A tray may come and go.
void SettingsModel::lookAtDesktop() {
  const bool hasTray = services_.statusItem.isInTray();
  const bool canLeaveTaskbar = services_.taskbar.canHideWindows();
  const bool isNew = std::pair(hasTray, canLeaveTaskbar) != std::pair(hasTray_, canLeaveTaskbar_);
  hasTray_ = hasTray;
  canLeaveTaskbar_ = canLeaveTaskbar;
  if (isNew) emit desktopChanged();
}

}  // namespace tarnloft
