#pragma once

#include <QString>

#include <functional>

namespace tarnloft {

// Bits of a key's modifiers, as they are stored.
namespace HotKeyModifier {
constexpr quint32 command = 0x0100;  // the key of the desktop itself: Super, Meta or Windows
constexpr quint32 shift = 0x0200;
constexpr quint32 option = 0x0800;  // Alt
constexpr quint32 control = 0x1000;
}  // namespace HotKeyModifier

// One key that reaches the program whichever program is in front. Main thread.
class GlobalHotKey {
 public:
  enum class State {
    off,         // none is wanted
    registered,  // pressing it is told
    taken,       // another program, or the desktop itself, has it
    waiting,     // the desktop hasn't answered yet
    unavailable  // this desktop has no such keys for programs
  };

  virtual ~GlobalHotKey() = default;

  // `pressed` runs at each press, `stateChanged` at each change of the state; once, before
  // `update`.
  virtual void install(std::function<void()> pressed, std::function<void()> stateChanged) = 0;

  // Replaces the key: a virtual key code and modifiers. Without modifiers there is none. Failures
  // are told to the system log, and by the state.
  virtual void update(quint32 keyCode, quint32 modifiers) = 0;

  virtual State state() const = 0;

  // The combination by which the desktop knows the key, as it writes it, where it tells; it may be
  // another than the one asked for. Empty elsewhere.
  virtual QString trigger() const { return {}; }
};

}  // namespace tarnloft
