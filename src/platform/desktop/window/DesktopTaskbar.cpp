#include "platform/desktop/window/DesktopTaskbar.h"

#include "platform/desktop/window/XServer.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

namespace tarnloft {
namespace {

// The last one is KDE's own, whose switcher doesn't follow the others.
constexpr std::array<std::string_view, 3> skippingNames{
    "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER", "_KDE_NET_WM_STATE_SKIP_SWITCHER"};

xcb_window_t rootOf(xcb_connection_t* server) {
  return xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
}

std::vector<xcb_atom_t> atomsIn(xcb_connection_t* server, xcb_window_t window,
                                xcb_atom_t property) {
  const auto cookie = xcb_get_property(server, false, window, property, XCB_ATOM_ATOM, 0, 1024);
  const OwnedReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(server, cookie, nullptr),
                                                   &std::free);
  if (!reply || reply->format != 32) return {};
  std::vector<xcb_atom_t> atoms(size_t(xcb_get_property_value_length(reply.get())) /
                                sizeof(xcb_atom_t));
  std::memcpy(atoms.data(), xcb_get_property_value(reply.get()), atoms.size() * sizeof(xcb_atom_t));
  return atoms;
}

// The window manager keeps the states of a window that it has, and is asked.
void askManager(xcb_connection_t* server, xcb_window_t window, xcb_atom_t state, bool add) {
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = window;
  message.type = atomOf(server, "_NET_WM_STATE");
  message.data.data32[0] = add ? 1 : 0;
  message.data.data32[1] = state;
  message.data.data32[3] = 1;  // a program asks
  xcb_send_event(server, false, rootOf(server),
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<const char*>(&message));
}

bool isListed(const QWindow& window) {
  return window.handle() && window.isTopLevel() &&
         (window.type() == Qt::Window || window.type() == Qt::Dialog);
}

// Of a window that it is about to show, the manager reads them.
void writeStates(xcb_connection_t* server, const QWindow& window) {
  const auto id = xcb_window_t(window.winId());
  const xcb_atom_t property = atomOf(server, "_NET_WM_STATE");
  std::vector<xcb_atom_t> states = atomsIn(server, id, property);
  for (const std::string_view name : skippingNames) {
    const xcb_atom_t state = atomOf(server, name);
    if (std::ranges::count(states, state) == 0) states.push_back(state);
  }
  xcb_change_property(server, XCB_PROP_MODE_REPLACE, id, property, XCB_ATOM_ATOM, 32,
                      uint32_t(states.size()), states.data());
}

}  // namespace

bool DesktopTaskbar::canHideWindows() const {
  xcb_connection_t* const server = xServer();
  if (!server) return false;
  const auto supported = atomsIn(server, rootOf(server), atomOf(server, "_NET_SUPPORTED"));
  return std::ranges::count(supported, atomOf(server, skippingNames.front())) > 0;
}

void DesktopTaskbar::setWindowsShown(bool shown) {
  if (std::exchange(areShown_, shown) == shown) return;
  if (!shown) qGuiApp->installEventFilter(this);
  xcb_connection_t* const server = xServer();
  if (!server) return;
  for (const QWindow* const window : QGuiApplication::topLevelWindows()) {
    if (!isListed(*window) || !window->isVisible()) continue;
    for (const std::string_view name : skippingNames) {
      askManager(server, xcb_window_t(window->winId()), atomOf(server, name), !shown);
    }
  }
  xcb_flush(server);
}

// The toolkit tells of it right before it shows the window, and leaves states that it finds.
bool DesktopTaskbar::eventFilter(QObject* watched, QEvent* event) {
  if (areShown_ || event->type() != QEvent::Show || !watched->isWindowType()) return false;
  const auto* const window = static_cast<QWindow*>(watched);
  xcb_connection_t* const server = xServer();
  if (server && isListed(*window)) writeStates(server, *window);
  return false;
}

}  // namespace tarnloft
