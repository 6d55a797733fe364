#include "platform/desktop/window/TrayHost.h"

#include "platform/desktop/window/XServer.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QTimer>

#include <chrono>
#include <utility>

namespace tarnloft {
namespace {

constexpr auto secondThought = std::chrono::seconds(1);
const auto watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const auto watcherPath = QStringLiteral("/StatusNotifierWatcher");

}  // namespace

TrayHost::TrayHost()
    : busTray_(watcher, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange) {
  connect(&busTray_, &QDBusServiceWatcher::serviceOwnerChanged, this, &TrayHost::askBus);
  for (const auto& change : {QStringLiteral("StatusNotifierHostRegistered"),
                             QStringLiteral("StatusNotifierHostUnregistered")}) {
    QDBusConnection::sessionBus().connect(watcher, watcherPath, watcher, change, this,
                                          SLOT(askBus()));
  }
  askBus();
  if (xcb_connection_t* const server = xServer()) {
    selection_ = atomOf(server, "_NET_SYSTEM_TRAY_S0");
    managerMessage_ = atomOf(server, "MANAGER");
    watchOwner();
    qGuiApp->installNativeEventFilter(this);
  }
}

void TrayHost::askBus() {
  auto question = QDBusMessage::createMethodCall(watcher, watcherPath,
                                                 QStringLiteral("org.freedesktop.DBus.Properties"),
                                                 QStringLiteral("Get"));
  question << watcher << QStringLiteral("IsStatusNotifierHostRegistered");
  question.setAutoStartService(false);
  auto* const asked =
      new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
  connect(asked, &QDBusPendingCallWatcher::finished, this, [this, asked] {
    const QDBusPendingReply<QDBusVariant> reply = *asked;
    asked->deleteLater();
    setOnBus(!reply.isError() && reply.value().variant().toBool());
  });
}

void TrayHost::setOnBus(bool isOnBus) {
  if (std::exchange(isOnBus_, isOnBus) != isOnBus) emit changed();
}

bool TrayHost::isThere() const { return isOnBus_ || owner() != XCB_NONE; }

uint32_t TrayHost::owner() const {
  xcb_connection_t* const server = selection_ ? xServer() : nullptr;
  if (!server) return XCB_NONE;
  const auto cookie = xcb_get_selection_owner(server, selection_);
  const OwnedReply<xcb_get_selection_owner_reply_t> reply(
      xcb_get_selection_owner_reply(server, cookie, nullptr), &std::free);
  return reply ? reply->owner : XCB_NONE;
}

// A tray that ends says nothing, but its window goes.
void TrayHost::watchOwner() {
  owner_ = owner();
  if (owner_ == XCB_NONE) return;
  const uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  const auto cookie =
      xcb_change_window_attributes_checked(xServer(), owner_, XCB_CW_EVENT_MASK, &events);
  const OwnedReply<xcb_generic_error_t> error(xcb_request_check(xServer(), cookie), &std::free);
  if (error) owner_ = XCB_NONE;  // gone already
}

// A tray that starts on X11 says so to everybody. Many a tray is on the bus too, a little later,
// and shows more of an icon from there.
bool TrayHost::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  const auto* const event = static_cast<xcb_generic_event_t*>(message);
  const int kind = event->response_type & 0x7f;
  if (kind == XCB_DESTROY_NOTIFY) {
    const auto* const ended = static_cast<xcb_destroy_notify_event_t*>(message);
    if (owner_ != XCB_NONE && ended->window == owner_) {
      owner_ = XCB_NONE;
      QMetaObject::invokeMethod(this, &TrayHost::changed, Qt::QueuedConnection);
    }
  } else if (kind == XCB_CLIENT_MESSAGE) {
    const auto* const told = static_cast<xcb_client_message_event_t*>(message);
    if (told->type == managerMessage_ && told->data.data32[1] == selection_) {
      watchOwner();
      QTimer::singleShot(secondThought, this, &TrayHost::changed);
    }
  }
  return false;
}

}  // namespace tarnloft
