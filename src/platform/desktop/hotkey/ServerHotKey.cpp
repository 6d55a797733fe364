#include "platform/desktop/hotkey/ServerHotKey.h"

#include "platform/VirtualKeys.h"

#include <QGuiApplication>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <set>
#include <string_view>
#include <utility>
#include <xcb/xcb.h>

namespace tarnloft {
namespace {

constexpr uint16_t eachModifier =
    XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;
constexpr uint32_t numLock = 0xff7f;

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

xcb_connection_t* server() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->connection() : nullptr;
}

uint16_t serverModifiers(quint32 modifiers) {
  uint16_t result = 0;
  if (modifiers & HotKeyModifier::control) result |= XCB_MOD_MASK_CONTROL;
  if (modifiers & HotKeyModifier::option) result |= XCB_MOD_MASK_1;
  if (modifiers & HotKeyModifier::shift) result |= XCB_MOD_MASK_SHIFT;
  if (modifiers & HotKeyModifier::command) result |= XCB_MOD_MASK_4;
  return result;
}

// The keys that give the symbol, in any of the keyboard's layouts: without modifiers if one does.
std::set<uint8_t> keysOf(xcb_connection_t* connection, uint32_t keysym) {
  const xcb_setup_t* const setup = xcb_get_setup(connection);
  const auto count = uint8_t(setup->max_keycode - setup->min_keycode + 1);
  const Owned<xcb_get_keyboard_mapping_reply_t> mapping(
      xcb_get_keyboard_mapping_reply(
          connection, xcb_get_keyboard_mapping(connection, setup->min_keycode, count), nullptr),
      &std::free);
  std::set<uint8_t> plain, shifted;
  if (!mapping) return plain;
  const xcb_keysym_t* const symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
  const int columns = mapping->keysyms_per_keycode;
  for (int key = 0; key < count; ++key) {
    for (int column = 0; column < columns; ++column) {
      if (symbols[key * columns + column] != keysym) continue;
      (column % 2 ? shifted : plain).insert(uint8_t(setup->min_keycode + key));
    }
  }
  return plain.empty() ? shifted : plain;
}

// The modifier that Num Lock is on this keyboard; 0 for none.
uint16_t numLockModifier(xcb_connection_t* connection) {
  const Owned<xcb_get_modifier_mapping_reply_t> mapping(
      xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr),
      &std::free);
  if (!mapping) return 0;
  const std::set<uint8_t> keys = keysOf(connection, numLock);
  const xcb_keycode_t* const codes = xcb_get_modifier_mapping_keycodes(mapping.get());
  const int each = mapping->keycodes_per_modifier;
  for (int i = 0; i < 8 * each; ++i) {
    if (codes[i] && keys.contains(codes[i])) return uint16_t(1u << unsigned(i / each));
  }
  return 0;
}

uint8_t keyboardEventsOf(xcb_connection_t* connection) {
  constexpr std::string_view name = "XKEYBOARD";
  const Owned<xcb_query_extension_reply_t> extension(
      xcb_query_extension_reply(
          connection, xcb_query_extension(connection, uint16_t(name.size()), name.data()), nullptr),
      &std::free);
  return extension && extension->present ? extension->first_event : 0;
}

}  // namespace

ServerHotKey::ServerHotKey(SystemLog& log) : log_(log), server_(server()) {
  keyboardChange_.setSingleShot(true);
  keyboardChange_.setInterval(std::chrono::milliseconds(50));
  connect(&keyboardChange_, &QTimer::timeout, this, [this] {
    ungrab();
    grab();
  });
}

ServerHotKey::~ServerHotKey() { ungrab(); }

void ServerHotKey::install(std::function<void()> pressed, std::function<void()> stateChanged) {
  pressed_ = std::move(pressed);
  stateChanged_ = std::move(stateChanged);
  if (!server_) return;
  keyboardEvents_ = keyboardEventsOf(server_);
  qGuiApp->installNativeEventFilter(this);
}

void ServerHotKey::update(quint32 keyCode, quint32 modifiers) {
  const VirtualKey* const key = virtualKey(keyCode);
  ungrab();
  modifiers_ = serverModifiers(modifiers);
  keysym_ = key ? key->keysym : 0;
  grab();
}

void ServerHotKey::grab() {
  if (modifiers_ == 0) return setState(State::off);
  if (!server_ || keysym_ == 0) return setState(State::unavailable);
  const uint16_t num = numLockModifier(server_);
  const std::set<uint16_t> locks{0, XCB_MOD_MASK_LOCK, num, uint16_t(num | XCB_MOD_MASK_LOCK)};
  int error = 0;
  for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(server_)); screen.rem > 0;
       xcb_screen_next(&screen)) {
    for (const uint8_t key : keysOf(server_, keysym_)) {
      for (const uint16_t lock : locks) {
        const Grab wanted{screen.data->root, key, uint16_t(modifiers_ | lock)};
        const int failed = grab(wanted);
        failed ? void(error = failed) : grabs_.push_back(wanted);
      }
    }
  }
  if (error) {
    ungrab();  // with some locks only it would seem to come and go
    log_.write(QStringLiteral("failed to register global hotkey (status %1)").arg(error));
  }
  setState(error ? State::taken : grabs_.empty() ? State::unavailable : State::registered);
}

int ServerHotKey::grab(const Grab& wanted) const {
  const auto cookie = xcb_grab_key_checked(server_, false, wanted.root, wanted.modifiers,
                                           wanted.key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  const Owned<xcb_generic_error_t> error(xcb_request_check(server_, cookie), &std::free);
  return error ? error->error_code : 0;
}

void ServerHotKey::ungrab() {
  for (const Grab& held : std::exchange(grabs_, {}))
    xcb_ungrab_key(server_, held.key, held.root, held.modifiers);
  if (server_) xcb_flush(server_);
  isDown_ = false;
}

void ServerHotKey::setState(State state) {
  if (std::exchange(state_, state) != state && stateChanged_) stateChanged_();
}

// Never keeps an event from the toolkit, which takes the time from it that raises windows.
bool ServerHotKey::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  const uint8_t kind = static_cast<xcb_generic_event_t*>(message)->response_type & 0x7f;
  if (kind == XCB_MAPPING_NOTIFY || (keyboardEvents_ && kind == keyboardEvents_)) {
    // The extension's kinds up to this one tell of another keyboard or layout.
    constexpr uint8_t mapChanged = 1;
    const bool isMapping = kind == XCB_MAPPING_NOTIFY;
    const uint8_t what = static_cast<xcb_generic_event_t*>(message)->pad0;
    if ((isMapping || what <= mapChanged) && modifiers_ != 0) keyboardChange_.start();
  } else if (kind == XCB_KEY_PRESS || kind == XCB_KEY_RELEASE) {
    const auto* const key = static_cast<xcb_key_press_event_t*>(message);
    // It comes to the screen, or to a menu of ours that has the whole keyboard.
    const bool isOurs = std::ranges::any_of(grabs_, [&](const Grab& held) {
      return held.key == key->detail && held.root == key->root &&
             (kind == XCB_KEY_RELEASE ||
              (held.modifiers & eachModifier) == (key->state & eachModifier));
    });
    if (isOurs && std::exchange(isDown_, kind == XCB_KEY_PRESS) != isDown_ && isDown_)
      QMetaObject::invokeMethod(
          this, [this] { pressed_(); }, Qt::QueuedConnection);
  }
  return false;
}

}  // namespace tarnloft
