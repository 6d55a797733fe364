#include "quickgrab/hotkey/HotKeyFormatter.h"

#include "platform/GlobalHotKey.h"
#include "platform/VirtualKeys.h"

#include <QChar>

#include <algorithm>
#include <array>

namespace tarnloft::HotKeyFormatter {
namespace {

struct Modifier {
  quint32 mask;
  Qt::KeyboardModifier flag;
  QStringView symbol;
  QStringView here;
};

constexpr std::array modifierTable{
    Modifier{HotKeyModifier::control, Qt::ControlModifier, u"⌃", u"Ctrl+"},
    Modifier{HotKeyModifier::option, Qt::AltModifier, u"⌥", u"Alt+"},
    Modifier{HotKeyModifier::shift, Qt::ShiftModifier, u"⇧", u"Shift+"},
    Modifier{HotKeyModifier::command, Qt::MetaModifier, u"⌘", u"Super+"},
};

// What is written on the two keys here.
constexpr quint32 backspace = 51;
constexpr quint32 forwardDelete = 117;

}  // namespace

QString modifierString(quint32 modifiers) {
  QString text;
  for (const Modifier& each : modifierTable)
    if (modifiers & each.mask) text += each.symbol;
  return text;
}

QString keyName(quint32 code) {
  const VirtualKey* const key = virtualKey(code);
  return key ? key->name.toString() : QStringLiteral("Key %1").arg(code);
}

QString shortcut(quint32 code, quint32 modifiers) {
  QString text;
  for (const Modifier& each : modifierTable)
    if (modifiers & each.mask) text += each.here;
  if (code == backspace) return text + QStringLiteral("Backspace");
  if (code == forwardDelete) return text + QStringLiteral("Delete");
  return text + keyName(code);
}

quint32 carbonModifiers(Qt::KeyboardModifiers modifiers) {
  quint32 mask = 0;
  for (const Modifier& each : modifierTable)
    if (modifiers & each.flag) mask |= each.mask;
  return mask;
}

std::optional<quint32> keyCode(quint32 keysym, quint32 scanCode) {
  constexpr quint32 firstScanCode = 8;  // of the kernel's codes, in those of window systems
  constexpr quint32 latin = 0x7f;
  const quint32 plain = keysym <= latin ? QChar::toLower(keysym) : keysym;
  auto found = std::ranges::find(virtualKeys, plain, &VirtualKey::keysym);
  if (found == virtualKeys.end() && scanCode > firstScanCode)
    found = std::ranges::find(virtualKeys, scanCode - firstScanCode, &VirtualKey::position);
  return found == virtualKeys.end() ? std::nullopt : std::optional(found->code);
}

}  // namespace tarnloft::HotKeyFormatter
