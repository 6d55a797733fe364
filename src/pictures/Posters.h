#pragma once

#include "assets/BackgroundWork.h"
#include "platform/Videos.h"

#include <QImage>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Gives views the pictures that stand for clips, read in the background. Keeps none. Borrows what
// it is given. Main thread.
class Posters : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")

 public:
  Posters(Videos& videos, BackgroundWork& work, QObject* parent = nullptr)
      : QObject(parent), videos_(videos), work_(work) {}

  using Done = std::function<void(const std::optional<QImage>& poster)>;

  // One requester's interest; its end withdraws the request. May outlive what it was asked of.
  class Request {
   public:
    Request() = default;
    Request(Request&& other) noexcept = default;
    Request& operator=(Request&& other) noexcept;
    ~Request() { cancel(); }
    Q_DISABLE_COPY(Request)

    // `Done` is not called any more.
    void cancel();

   private:
    friend class Posters;
    BackgroundWork::TaskPtr task_;
    std::shared_ptr<Done> done_;
  };

  [[nodiscard]] Request poster(const QString& path, Done done);

 private:
  Videos& videos_;
  BackgroundWork& work_;
};

}  // namespace tarnloft
