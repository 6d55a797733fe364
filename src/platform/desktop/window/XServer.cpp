#include "platform/desktop/window/XServer.h"

#include <QGuiApplication>

namespace tarnloft {

xcb_connection_t* xServer() {
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->connection() : nullptr;
}

xcb_atom_t atomOf(xcb_connection_t* server, std::string_view name) {
  const auto cookie = xcb_intern_atom(server, false, uint16_t(name.size()), name.data());
  const OwnedReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(server, cookie, nullptr),
                                                  &std::free);
  return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

}  // namespace tarnloft
