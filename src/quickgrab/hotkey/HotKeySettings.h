#pragma once

#include "platform/Beep.h"
#include "platform/GlobalHotKey.h"
#include "quickgrab/MenuBarPrefs.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The key that summons the panel, for the settings: what it is, how the desktop stands to it, and
// another one in its place. Main thread.
class HotKeySettings : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the program's presence beside its windows")
  Q_PROPERTY(QString shortcut READ shortcut NOTIFY changed)
  // A sentence for what the user should know of it; empty while it works as shown.
  Q_PROPERTY(QString problem READ problem NOTIFY changed)
  // While the next key is to become it, the present one summons nothing.
  Q_PROPERTY(bool recording READ isRecording WRITE setRecording NOTIFY changed)

 public:
  // Borrowed: all outlive this.
  HotKeySettings(MenuBarPrefs& prefs, GlobalHotKey& hotKey, Beep& beep);

  QString shortcut() const;
  QString problem() const;
  bool isRecording() const { return isRecording_; }
  void setRecording(bool isRecording);

  // A key that was pressed while recording, by the window system's numbers: Esc leaves it at the
  // old one, a key without a modifier is refused, any other is taken.
  void take(quint32 keysym, quint32 scanCode, Qt::KeyboardModifiers modifiers);

  // Asks the desktop for the key of the preferences.
  void updateHotKey();

 signals:
  void changed();

 private:
  MenuBarPrefs& prefs_;
  GlobalHotKey& hotKey_;
  Beep& beep_;
  bool isRecording_ = false;
};

}  // namespace tarnloft
