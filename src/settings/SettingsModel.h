#pragma once

#include "library/LibraryStore.h"
#include "platform/LoginItem.h"
#include "platform/StatusItem.h"
#include "platform/Taskbar.h"
#include "quickgrab/MenuBarPrefs.h"
#include "quickgrab/hotkey/HotKeySettings.h"
#include "updates/UpdaterViewModel.h"

#include <QColor>
#include <QTimer>

namespace tarnloft {

// What the settings window needs of its surroundings. Borrowed: all of it outlives the window.
struct SettingsServices {
  LibraryStore& library;
  MenuBarPrefs& menuBar;
  FileDialogs& dialogs;
  FileViewer& viewer;
  const StatusItem& statusItem;
  const Taskbar& taskbar;
  LoginItem& loginItem;
  UpdaterViewModel& updater;
  std::function<HotKeySettings*()> hotKey;  // null before the key is registered
};

// What the settings window shows and changes, each at once; changes from elsewhere show as well.
// Made with the window and gone with it. Main thread.
class SettingsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The settings window has one")
  Q_PROPERTY(QString location READ location NOTIFY locationChanged)
  // Why the folder that was chosen last can't be the library; empty if it can, or none was.
  Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged)
  // Why what the library's folder holds isn't seen; empty if it is.
  Q_PROPERTY(QString libraryProblem READ libraryProblem NOTIFY libraryProblemChanged)
  // Places in the lists of their cases.
  Q_PROPERTY(int colorCopyFormat READ colorCopyFormat WRITE setColorCopyFormat NOTIFY
                 colorCopyFormatChanged)
  Q_PROPERTY(int assetDisplayMode READ assetDisplayMode WRITE setAssetDisplayMode NOTIFY
                 assetDisplayModeChanged)
  Q_PROPERTY(
      int appearanceMode READ appearanceMode WRITE setAppearanceMode NOTIFY appearanceModeChanged)
  Q_PROPERTY(QStringList colorCopyFormats READ colorCopyFormats CONSTANT)
  Q_PROPERTY(
      QColor defaultAccent READ defaultAccent WRITE setDefaultAccent NOTIFY defaultAccentChanged)
  Q_PROPERTY(tarnloft::UpdaterViewModel* updater READ updater CONSTANT)
  Q_PROPERTY(tarnloft::MenuBarPrefs* menuBar READ menuBar CONSTANT)
  Q_PROPERTY(tarnloft::HotKeySettings* hotKey READ hotKey NOTIFY hotKeyChanged)
  // The session starts the program, without a window.
  Q_PROPERTY(bool startsAtLogin READ startsAtLogin NOTIFY loginChanged)
  // Why that couldn't be changed; empty if it could.
  Q_PROPERTY(QString loginProblem READ loginProblem NOTIFY loginChanged)
  // Whether the desktop has what the rows of the tray and of the taskbar are about.
  Q_PROPERTY(bool hasTray READ hasTray NOTIFY desktopChanged)
  Q_PROPERTY(bool canLeaveTaskbar READ canLeaveTaskbar NOTIFY desktopChanged)

 public:
  explicit SettingsModel(const SettingsServices& services, QObject* parent = nullptr);

  // What tells of no change is looked at, now and again: from the window's showing on.
  void followDesktop();

  const QString& location() const { return services_.library.libraryURL(); }
  const QString& refusal() const { return refusal_; }
  QString libraryProblem() const { return services_.library.libraryProblem(); }
  // Asks for a folder and makes it the library, unless it can't be one.
  Q_INVOKABLE void chooseFolder();
  // In the file manager.
  Q_INVOKABLE void revealFolder();
  Q_INVOKABLE void lookAgain() { services_.library.scan(); }

  int colorCopyFormat() const { return int(preferences().colorCopyFormat()); }
  void setColorCopyFormat(int format);
  static QStringList colorCopyFormats();
  int assetDisplayMode() const { return int(preferences().assetDisplayMode()); }
  void setAssetDisplayMode(int mode);

  UpdaterViewModel* updater() const { return &services_.updater; }

  MenuBarPrefs* menuBar() const { return &services_.menuBar; }
  HotKeySettings* hotKey() const { return services_.hotKey(); }
  // Control, Option and Space again.
  Q_INVOKABLE void resetHotKey() { services_.menuBar.setHotKey({}); }
  bool startsAtLogin() const { return services_.loginItem.isOn(); }
  const QString& loginProblem() const { return loginProblem_; }
  Q_INVOKABLE void startAtLogin(bool start);
  bool hasTray() const { return hasTray_; }
  bool canLeaveTaskbar() const { return hasTray_ && canLeaveTaskbar_; }

  int appearanceMode() const { return int(preferences().appearanceMode()); }
  void setAppearanceMode(int mode);
  QColor defaultAccent() const;
  void setDefaultAccent(const QColor& color);

 signals:
  void locationChanged();
  void refusalChanged();
  void libraryProblemChanged();
  void colorCopyFormatChanged();
  void assetDisplayModeChanged();
  void appearanceModeChanged();
  void defaultAccentChanged();
  void desktopChanged();
  void hotKeyChanged();
  void loginChanged();

 private:
  LibraryPreferences& preferences() const { return services_.library.preferences(); }
  void setRefusal(const QString& reason);
  void lookAtDesktop();

  const SettingsServices services_;
  QString refusal_;
  QString loginProblem_;
  QTimer slowness_;  // of a folder that is being looked at
  bool hasTray_ = false;
  bool canLeaveTaskbar_ = false;
  QTimer desktopCheck_;
};

}  // namespace tarnloft
