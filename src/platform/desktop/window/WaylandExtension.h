#pragma once

#include <QtGlobal>

#include <cstdint>

struct wl_event_queue;
struct wl_interface;
struct wl_registry;

namespace tarnloft {

// An extension of the compositor's in its first version, spoken to on a queue of its own beside the
// toolkit's. Main thread; needs a QGuiApplication.
class WaylandExtension {
 public:
  explicit WaylandExtension(const wl_interface& wanted);
  ~WaylandExtension();
  Q_DISABLE_COPY_MOVE(WaylandExtension)

  // Null where there is no such extension, or no Wayland. Whoever asks destroys it before this.
  template <class Object>
  Object* object() const {
    return static_cast<Object*>(object_);
  }

  // Until the compositor has answered all that it was told.
  void waitForAnswers();

 private:
  static void found(void* data, wl_registry* registry, uint32_t name, const char* interface,
                    uint32_t version);
  static void gone(void* /*data*/, wl_registry* /*registry*/, uint32_t /*name*/) {}

  const wl_interface& wanted_;
  wl_event_queue* queue_ = nullptr;
  wl_registry* registry_ = nullptr;
  void* object_ = nullptr;
};

}  // namespace tarnloft
