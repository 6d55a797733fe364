// A window that takes drags as any program would, written on the X protocol alone, so that it sees
// what our toolkit really shows to others. Arguments: x, y, then the formats to ask for, in order.
// Prints READY once it is on the screen, OVER for each place of a drag above it, and for a drop
// what it was offered and what it got, a line each: the number of bytes and the first ones in hex.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>
#include <xcb/xcb.h>

namespace {

template <class T>
std::unique_ptr<T, decltype(&std::free)> owned(T* reply) {
  return {reply, std::free};
}

class Target {
 public:
  Target(int x, int y, std::vector<std::string> wanted)
      : connection_(xcb_connect(nullptr, nullptr)), wanted_(std::move(wanted)) {
    if (xcb_connection_has_error(connection_)) fail("no display");
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
    window_ = xcb_generate_id(connection_);
    // No window manager shall place it elsewhere.
    const uint32_t values[] = {screen->white_pixel, 1, XCB_EVENT_MASK_PROPERTY_CHANGE};
    xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window_, screen->root, int16_t(x),
                      int16_t(y), 200, 150, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    const uint32_t version = 5;
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, atom("XdndAware"),
                        XCB_ATOM_ATOM, 32, 1, &version);
    xcb_map_window(connection_, window_);
    xcb_flush(connection_);
  }
  ~Target() { xcb_disconnect(connection_); }

  void run() {
    // The server has answered, so it has done what was asked before.
    (void)owned(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    say("READY");
    while (auto event = owned(xcb_wait_for_event(connection_))) {
      if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE) continue;
      take(*reinterpret_cast<xcb_client_message_event_t*>(event.get()));
    }
  }

 private:
  [[noreturn]] static void fail(const char* why) {
    std::fprintf(stderr, "%s\n", why);
    std::exit(1);
  }
  static void say(const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
  }

  xcb_atom_t atom(const std::string& name) {
    const auto cookie = xcb_intern_atom(connection_, 0, uint16_t(name.size()), name.data());
    return owned(xcb_intern_atom_reply(connection_, cookie, nullptr))->atom;
  }
  std::string nameOf(xcb_atom_t of) {
    const auto reply =
        owned(xcb_get_atom_name_reply(connection_, xcb_get_atom_name(connection_, of), nullptr));
    if (!reply) return "?";
    return {xcb_get_atom_name_name(reply.get()),
            size_t(xcb_get_atom_name_name_length(reply.get()))};
  }
  std::string names(const xcb_atom_t* atoms, size_t count) {
    std::string result;
    for (size_t i = 0; i < count; ++i) {
      if (atoms[i] != XCB_ATOM_NONE) result += ' ' + nameOf(atoms[i]);
    }
    return result;
  }

  void take(const xcb_client_message_event_t& message) {
    const uint32_t* data = message.data.data32;
    if (message.type == atom("XdndEnter")) return enter(data);
    if (message.type == atom("XdndPosition")) {
      say("OVER");
      return send("XdndStatus", data[0], {window_, 3, 0, 0, atom("XdndActionCopy")});
    }
    if (message.type != atom("XdndDrop")) return;
    ask("TARGETS", data[2]);
    for (const std::string& format : wanted_) ask(format, data[2]);
    send("XdndFinished", data[0], {window_, 1, atom("XdndActionCopy"), 0, 0});
    say("FINISHED");
  }

  void enter(const uint32_t* data) {
    if ((data[1] & 1) == 0) return say("TYPES" + names(data + 2, 3));
    const auto cookie =
        xcb_get_property(connection_, 0, data[0], atom("XdndTypeList"), XCB_ATOM_ATOM, 0, 1000);
    const auto list = owned(xcb_get_property_reply(connection_, cookie, nullptr));
    say("TYPES" + names(static_cast<xcb_atom_t*>(xcb_get_property_value(list.get())),
                        size_t(xcb_get_property_value_length(list.get())) / sizeof(xcb_atom_t)));
  }

  void send(const char* type, xcb_window_t to, const std::vector<uint32_t>& data) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = to;
    message.type = atom(type);
    std::copy(data.begin(), data.end(), message.data.data32);
    xcb_send_event(connection_, 0, to, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection_);
  }

  // Waits for an event of that kind, other ones dropped.
  std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> await(uint8_t kind) {
    for (;;) {
      auto event = owned(xcb_wait_for_event(connection_));
      if (!event) fail("the display has gone");
      if ((event->response_type & 0x7f) == kind) return event;
    }
  }

  void ask(const std::string& format, xcb_timestamp_t time) {
    xcb_convert_selection(connection_, window_, atom("XdndSelection"), atom(format),
                          atom("RECEIVED"), time);
    xcb_flush(connection_);
    const auto event = await(XCB_SELECTION_NOTIFY);
    const auto* answer = reinterpret_cast<xcb_selection_notify_event_t*>(event.get());
    if (answer->property == XCB_ATOM_NONE) return say("REFUSED " + format);
    const auto cookie = xcb_get_property(connection_, 1, window_, answer->property,
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, UINT32_MAX / 8);
    const auto reply = owned(xcb_get_property_reply(connection_, cookie, nullptr));
    const auto* bytes = static_cast<const uint8_t*>(xcb_get_property_value(reply.get()));
    const auto length = size_t(xcb_get_property_value_length(reply.get()));
    if (format == "TARGETS") {
      return say("TARGETS" + names(reinterpret_cast<const xcb_atom_t*>(bytes), length / 4));
    }
    say("DATA " + format + ' ' + std::to_string(length) + ' ' +
        hex(bytes, std::min<size_t>(length, 1000)));
  }

  static std::string hex(const uint8_t* bytes, size_t length) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (size_t i = 0; i < length; ++i) text += {digits[bytes[i] >> 4], digits[bytes[i] & 15]};
    return text;
  }

  xcb_connection_t* connection_;
  xcb_window_t window_ = 0;
  std::vector<std::string> wanted_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 1;
  Target(std::atoi(argv[1]), std::atoi(argv[2]), {argv + 3, argv + argc}).run();
}
