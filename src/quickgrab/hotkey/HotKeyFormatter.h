#pragma once

#include <QString>

#include <optional>

// Keys and modifiers as they are stored, and as users read them.
namespace tarnloft::HotKeyFormatter {

// "⌃⌥" and the like, in the order Control, Option, Shift, Command; empty for none.
QString modifierString(quint32 modifiers);
// The key's name, or "Key 65" for a code without one.
QString keyName(quint32 keyCode);
// Both, in this desktop's words: "Ctrl+Alt+Space".
QString shortcut(quint32 keyCode, quint32 modifiers);

// Of an event: the four modifiers that count.
quint32 carbonModifiers(Qt::KeyboardModifiers modifiers);
// The key of an event, by the symbol that it gives or, where that is none of the table's, as with
// Shift or in another script, by its place on the keyboard. None for a key without a name.
std::optional<quint32> keyCode(quint32 keysym, quint32 scanCode);

}  // namespace tarnloft::HotKeyFormatter
