#pragma once

#include <QQmlComponent>

namespace tarnloft {

// Loads a QML file on the engine's own thread, for a component of it that is made later. Main
// thread.
class ViewLoading {
 public:
  // Begins. The engine outlives this.
  ViewLoading(QQmlEngine& engine, const QUrl& url)
      : component_(&engine, url, QQmlComponent::Asynchronous) {}

  // The loading thread asks the main one for things, and waits. To be called now and then while the
  // main thread does other work.
  static void answer();

 private:
  QQmlComponent component_;
};

}  // namespace tarnloft
