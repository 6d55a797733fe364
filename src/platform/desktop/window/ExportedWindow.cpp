#include "platform/desktop/window/ExportedWindow.h"

#include "platform/desktop/window/WaylandExtension.h"

#include <QGuiApplication>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>

#include <xdg-foreign-unstable-v2-client.h>

namespace tarnloft {

struct ExportedWindow::Surface {
  WaylandExtension extension{zxdg_exporter_v2_interface};
  zxdg_exporter_v2* exporter = extension.object<zxdg_exporter_v2>();
  zxdg_exported_v2* exported = nullptr;
  QString handle;

  explicit Surface(wl_surface* surface);
  ~Surface();
  Q_DISABLE_COPY_MOVE(Surface)

  static void named(void* data, zxdg_exported_v2* /*exported*/, const char* handle);
};

ExportedWindow::Surface::Surface(wl_surface* surface) {
  if (!exporter) return;
  exported = zxdg_exporter_v2_export_toplevel(exporter, surface);
  static const zxdg_exported_v2_listener listener{&Surface::named};
  zxdg_exported_v2_add_listener(exported, &listener, this);
  extension.waitForAnswers();
}

ExportedWindow::Surface::~Surface() {
  if (exported) zxdg_exported_v2_destroy(exported);
  if (exporter) zxdg_exporter_v2_destroy(exporter);
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
  auto* const surface =
      static_cast<wl_surface*>(native->nativeResourceForWindow("surface", window));
  if (!surface) return;
  surface_ = std::make_unique<Surface>(surface);
  if (!surface_->handle.isEmpty()) handle_ = QStringLiteral("wayland:") + surface_->handle;
}

ExportedWindow::~ExportedWindow() = default;

}  // namespace tarnloft
