#pragma once

#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace tarnloft {

template <class Reply>
using OwnedReply = std::unique_ptr<Reply, decltype(&std::free)>;

// The toolkit's connection; null elsewhere than on X11. Needs a QGuiApplication.
xcb_connection_t* xServer();

// `XCB_ATOM_NONE` if the server can't be asked.
xcb_atom_t atomOf(xcb_connection_t* server, std::string_view name);

}  // namespace tarnloft
