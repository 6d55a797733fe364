#include "quickgrab/hotkey/HotKeySettings.h"

#include "quickgrab/hotkey/HotKeyFormatter.h"

namespace tarnloft {

HotKeySettings::HotKeySettings(MenuBarPrefs& prefs, GlobalHotKey& hotKey, Beep& beep)
    : prefs_(prefs), hotKey_(hotKey), beep_(beep) {
  connect(&prefs, &MenuBarPrefs::hotKeyChanged, this, &HotKeySettings::changed);
}

QString HotKeySettings::shortcut() const {
  return HotKeyFormatter::shortcut(prefs_.hotKey().code, prefs_.hotKey().modifiers);
}

QString HotKeySettings::problem() const {
  if (isRecording_) return {};
  switch (hotKey_.state()) {
    case GlobalHotKey::State::off: return QStringLiteral("No key summons the panel.");
    case GlobalHotKey::State::registered: {
      const QString trigger = hotKey_.trigger();
      if (trigger.isEmpty() || trigger.compare(shortcut(), Qt::CaseInsensitive) == 0) return {};
      return QStringLiteral("The desktop’s own settings have it as %1.").arg(trigger);
    }
    case GlobalHotKey::State::taken:
      return QStringLiteral("The desktop or another program has this key. Choose another one.");
    case GlobalHotKey::State::waiting: return QStringLiteral("Waiting for the desktop…");
    case GlobalHotKey::State::unavailable: break;
  }
  return QStringLiteral(
      "This desktop lends programs no such key. Have its keyboard settings run "
      "“tarnloft --quick-grab”.");
}

void HotKeySettings::setRecording(bool isRecording) {
  if (isRecording_ == isRecording) return;
  isRecording_ = isRecording;
  isRecording ? hotKey_.update(0, 0) : updateHotKey();
  emit changed();
}

void HotKeySettings::take(quint32 keysym, quint32 scanCode, Qt::KeyboardModifiers modifiers) {
  constexpr quint32 escape = 53;
  const auto code = HotKeyFormatter::keyCode(keysym, scanCode);
  const quint32 mask = HotKeyFormatter::carbonModifiers(modifiers);
  if (code == escape) return setRecording(false);
  if (!code || mask == 0) return beep_.sound();
  const HotKey before = prefs_.hotKey();
  prefs_.setHotKey({*code, mask});  // which has it registered, if it is another one
  isRecording_ = false;
  if (before == prefs_.hotKey()) updateHotKey();
  emit changed();
}

void HotKeySettings::updateHotKey() {
  hotKey_.update(prefs_.hotKey().code, prefs_.hotKey().modifiers);
}

}  // namespace tarnloft
