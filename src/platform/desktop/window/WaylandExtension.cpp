#include "platform/desktop/window/WaylandExtension.h"

#include <QGuiApplication>
#include <qpa/qplatformnativeinterface.h>

#include <cstring>
#include <wayland-client.h>

namespace tarnloft {
namespace {

wl_display* compositor() {
  QPlatformNativeInterface* const native = QGuiApplication::platformNativeInterface();
  if (!native || !QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
    return nullptr;
  return static_cast<wl_display*>(native->nativeResourceForIntegration("wl_display"));
}

}  // namespace

WaylandExtension::WaylandExtension(const wl_interface& wanted) : wanted_(wanted) {
  wl_display* const display = compositor();
  if (!display) return;
  queue_ = wl_display_create_queue(display);
  auto* const wrapper = static_cast<wl_display*>(wl_proxy_create_wrapper(display));
  wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), queue_);
  registry_ = wl_display_get_registry(wrapper);
  wl_proxy_wrapper_destroy(wrapper);
  static const wl_registry_listener listener{&WaylandExtension::found, &WaylandExtension::gone};
  wl_registry_add_listener(registry_, &listener, this);
  waitForAnswers();
}

WaylandExtension::~WaylandExtension() {
  if (!queue_) return;
  wl_registry_destroy(registry_);
  wl_event_queue_destroy(queue_);
}

void WaylandExtension::waitForAnswers() { wl_display_roundtrip_queue(compositor(), queue_); }

void WaylandExtension::found(void* data, wl_registry* registry, uint32_t name,
                             const char* interface, uint32_t /*version*/) {
  auto* const self = static_cast<WaylandExtension*>(data);
  if (std::strcmp(interface, self->wanted_.name) != 0) return;
  self->object_ = wl_registry_bind(registry, name, &self->wanted_, 1);
}

}  // namespace tarnloft
