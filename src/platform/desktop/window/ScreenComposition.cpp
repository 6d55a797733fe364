#include "platform/desktop/window/ScreenComposition.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace tarnloft {
namespace {

using Reply = std::unique_ptr<void, decltype(&std::free)>;

}  // namespace

bool isScreenComposed() {
  const auto* gui = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
  const auto* x11 = gui ? gui->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
  xcb_connection_t* const connection = x11 ? x11->connection() : nullptr;
  if (!connection) return true;
  constexpr std::string_view name = "_NET_WM_CM_S0";
  const auto cookie = xcb_intern_atom(connection, false, uint16_t(name.size()), name.data());
  auto* const atom = xcb_intern_atom_reply(connection, cookie, nullptr);
  const Reply atomHeld(atom, &std::free);
  if (!atom) return true;
  auto* const owner = xcb_get_selection_owner_reply(
      connection, xcb_get_selection_owner(connection, atom->atom), nullptr);
  const Reply ownerHeld(owner, &std::free);
  return !owner || owner->owner != XCB_NONE;
}

}  // namespace tarnloft
