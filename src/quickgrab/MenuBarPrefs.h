#pragma once

#include "platform/Preferences.h"
#include "platform/SystemLog.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The key that summons the panel: a virtual key code and modifiers, as they stand in the
// preferences. Without modifiers there is none.
struct HotKey {
  quint32 code = 49;         // Space
  quint32 modifiers = 6144;  // Control and Option

  bool operator==(const HotKey&) const = default;
};

// The user's wishes for the program beside its windows: read once, written at each change; a value
// that can't be understood yields the default. Main thread.
class MenuBarPrefs : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The application has one")
  Q_PROPERTY(bool keepRunning READ keepRunning WRITE setKeepRunning NOTIFY keepRunningChanged)
  Q_PROPERTY(bool showDock READ showDock WRITE setShowDock NOTIFY showDockChanged)
  Q_PROPERTY(bool showColors READ showColors WRITE setShowColors NOTIFY assetTypesChanged)
  Q_PROPERTY(bool showLogos READ showLogos WRITE setShowLogos NOTIFY assetTypesChanged)
  Q_PROPERTY(bool showType READ showType WRITE setShowType NOTIFY assetTypesChanged)
  Q_PROPERTY(bool showGradients READ showGradients WRITE setShowGradients NOTIFY assetTypesChanged)
  Q_PROPERTY(bool showCode READ showCode WRITE setShowCode NOTIFY assetTypesChanged)

 public:
  // Borrowed: both outlive this. A stored number that no key has is told to the log.
  MenuBarPrefs(Preferences& store, SystemLog& log);

  // The program stays alive when its last window closes.
  bool keepRunning() const { return keepRunning_; }
  // The windows have entries in the desktop's taskbar.
  bool showDock() const { return showDock_; }
  // What appears in the panel.
  bool showColors() const { return showColors_; }
  bool showLogos() const { return showLogos_; }
  bool showType() const { return showType_; }
  bool showGradients() const { return showGradients_; }
  bool showCode() const { return showCode_; }
  bool hasAnyAssetTypeEnabled() const;
  const HotKey& hotKey() const { return hotKey_; }

  void setKeepRunning(bool keep);
  void setShowDock(bool show);
  void setShowColors(bool show);
  void setShowLogos(bool show);
  void setShowType(bool show);
  void setShowGradients(bool show);
  void setShowCode(bool show);
  void setHotKey(const HotKey& hotKey);

 signals:
  void keepRunningChanged();
  void showDockChanged();
  void assetTypesChanged();
  void hotKeyChanged();

 private:
  bool readSwitch(QLatin1String key, bool byDefault) const;
  quint32 readNumber(QLatin1String key, quint32 byDefault, SystemLog& log) const;
  void store(bool& field, QLatin1String key, bool on, void (MenuBarPrefs::*changed)());

  Preferences& store_;
  bool keepRunning_;
  bool showDock_;
  bool showColors_;
  bool showLogos_;
  bool showType_;
  bool showGradients_;
  bool showCode_;
  HotKey hotKey_;
};

}  // namespace tarnloft
