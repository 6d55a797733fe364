#include "platform/desktop/window/ExportedWindow.h"

#include <QGuiApplication>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>

#include <cstring>
#include <wayland-client.h>
#include <xdg-foreign-unstable-v2-client.h>

namespace tarnloft {

// Speaks on a queue of its own, beside the toolkit's.
struct ExportedWindow::Surface {
  wl_event_queue* queue = nullptr;
  wl_registry* registry = nullptr;
  zxdg_exporter_v2* exporter = nullptr;
  zxdg_exported_v2* exported = nullptr;
  QString handle;

  Surface(wl_display* display, wl_surface* surface);
  ~Surface();
  Q_DISABLE_COPY_MOVE(Surface)

  static void found(void* data, wl_registry* registry, uint32_t name, const char* interface,
                    uint32_t version);
  static void gone(void* /*data*/, wl_registry* /*registry*/, uint32_t /*name*/) {}
  static void named(void* data, zxdg_exported_v2* /*exported*/, const char* handle);
};

ExportedWindow::Surface::Surface(wl_display* display, wl_surface* surface)
    : queue(wl_display_create_queue(display)) {
  auto* const wrapper = static_cast<wl_display*>(wl_proxy_create_wrapper(display));
  wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), queue);
  registry = wl_display_get_registry(wrapper);
  wl_proxy_wrapper_destroy(wrapper);
  static const wl_registry_listener registryListener{&Surface::found, &Surface::gone};
  wl_registry_add_listener(registry, &registryListener, this);
  wl_display_roundtrip_queue(display, queue);
  if (!exporter) return;
  exported = zxdg_exporter_v2_export_toplevel(exporter, surface);
  static const zxdg_exported_v2_listener exportedListener{&Surface::named};
  zxdg_exported_v2_add_listener(exported, &exportedListener, this);
  wl_display_roundtrip_queue(display, queue);
}

ExportedWindow::Surface::~Surface() {
  if (exported) zxdg_exported_v2_destroy(exported);
  if (exporter) zxdg_exporter_v2_destroy(exporter);
  wl_registry_destroy(registry);
  wl_event_queue_destroy(queue);
}

void ExportedWindow::Surface::found(void* data, wl_registry* registry, uint32_t name,
                                    const char* interface, uint32_t /*version*/) {
  if (std::strcmp(interface, zxdg_exporter_v2_interface.name) != 0) return;
  static_cast<Surface*>(data)->exporter = static_cast<zxdg_exporter_v2*>(
      wl_registry_bind(registry, name, &zxdg_exporter_v2_interface, 1));
}

void ExportedWindow::Surface::named(void* data, zxdg_exported_v2* /*exported*/,
                                    const char* handle) {
  static_cast<Surface*>(data)->handle = QString::fromUtf8(handle);
}

ExportedWindow::ExportedWindow(QWindow* window) {
  if (!window) return;
  if (qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) {
    handle_ = QStringLiteral("x11:") + QString::number(window->winId(), 16);
    return;
  }
  QPlatformNativeInterface* const native = QGuiApplication::platformNativeInterface();
  auto* const display =
      static_cast<wl_display*>(native->nativeResourceForIntegration("wl_display"));
  auto* const surface =
      static_cast<wl_surface*>(native->nativeResourceForWindow("surface", window));
  if (!display || !surface) return;
  surface_ = std::make_unique<Surface>(display, surface);
  if (!surface_->handle.isEmpty()) handle_ = QStringLiteral("wayland:") + surface_->handle;
}

ExportedWindow::~ExportedWindow() = default;

}  // namespace tarnloft
